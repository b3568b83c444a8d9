// A face is darker under the pointer and darker still while it is pressed; a dark face is lighter instead.
#include "desktop/face.h"

#include <QPolygonF>
#include <algorithm>

#include "desktop/contrast.h"
#include "desktop/control_view.h"

namespace desktop {
namespace {

constexpr double LightPart = 0.55;    // of white in the grey
constexpr double HoveredPart = 0.14;  // of black or white in the fill
constexpr double DownPart = 0.3;
constexpr double EdgePart = 0.35;        // of the text's colour in the line
constexpr double FocusLine = 2;          // pixels
constexpr double MarkHoveredPart = 0.2;  // of the mark's colour within it
constexpr double MarkDownPart = 0.45;

}  // namespace

QColor Lit(const QColor& grey) { return Mixed(grey, Qt::white, LightPart); }

QColor FillOf(const ButtonFace& face) {
  if (!face.Enabled) return Mixed(face.Back, face.Ground, 0.5);
  double shade = face.Down ? DownPart : face.Hovered ? HoveredPart : 0;
  return Mixed(face.Back, BlackOrWhite(face.Back), shade);
}

QColor CaptionColour(const QColor& wanted, const ButtonFace& face) {
  QColor fill = FillOf(face);
  QColor seen = StandingOut(wanted, fill, TextContrast);
  return face.Enabled ? seen : DisabledColour(seen, fill);
}

void PaintFace(QPainter& painter, const QRectF& area, const ButtonFace& face, double corner) {
  painter.setRenderHint(QPainter::Antialiasing);
  QColor mark = StandingOut(face.Focus, face.Ground, MarkContrast);
  QColor edge = face.Default && face.Enabled ? mark : EdgeOn(face.Ground, BlackOrWhite(face.Ground));
  if (!face.Enabled) edge = Mixed(edge, face.Ground, 0.5);
  bool bare = face.Flat && !(face.Enabled && (face.Hovered || face.Down));
  painter.setPen(bare ? QPen(Qt::NoPen) : QPen(edge, 1));
  painter.setBrush(FillOf(face));
  painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
  if (!face.Focused) return;
  painter.setPen(QPen(mark, FocusLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(area.adjusted(1, 1, -1, -1), corner, corner);
}

void PaintMark(QPainter& painter, const QRectF& area, const OptionMark& mark) {
  painter.setRenderHint(QPainter::Antialiasing);
  double size = area.width();
  double line = std::max(1.5, size / 9);
  double corner = mark.Round ? size / 2 : size / 6;
  double lit = mark.Down ? MarkDownPart : mark.Hovered ? MarkHoveredPart : 0;
  painter.setPen(QPen(mark.Colour, line));
  painter.setBrush(lit > 0 ? Mixed(mark.Ground, mark.Colour, lit) : QColor(Qt::transparent));
  painter.drawRoundedRect(area.adjusted(line / 2, line / 2, -line / 2, -line / 2), corner, corner);
  if (!mark.Set) return;
  double inset = size * 0.27;
  if (mark.Round) {
    painter.setBrush(mark.Colour);
    painter.drawEllipse(area.adjusted(inset, inset, -inset, -inset));
    return;
  }
  painter.setPen(QPen(mark.Colour, size / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(
      QPolygonF({area.topLeft() + QPointF(size * 0.25, size * 0.52), area.topLeft() + QPointF(size * 0.43, size * 0.7),
                 area.topLeft() + QPointF(size * 0.76, size * 0.31)}));
}

QColor EdgeOn(const QColor& ground, const QColor& text) {
  return StandingOut(Mixed(ground, text, EdgePart), ground, MarkContrast);
}

}  // namespace desktop
