// The fitting and the drawing.
#include "desktop/page_painter.h"

#include <QFont>
#include <algorithm>

#include "desktop/text.h"

namespace desktop {
namespace {

constexpr double PointsPerInch = 72;
constexpr int Columns = 80;
// Courier's measures, in parts of its size: ten characters an inch at 12 points, and how far a line of it reaches above
// and below the base line.
constexpr double CellPart = 0.6;
constexpr double AscentPart = 0.8333;
constexpr double DescentPart = 0.3;
constexpr double LinePart = AscentPart + DescentPart;

}  // namespace

PaperGrid FitGrid(const runtime::PrintJob& job, QSizeF area, double resolution) {
  std::size_t columns = Columns;
  std::size_t lines = 1;
  for (const runtime::PrintedPage& page : job.Pages) {
    lines = std::max(lines, page.Lines.size());
    for (const runtime::PrintedLine& line : page.Lines) columns = std::max(columns, line.From - 1 + line.Text.size());
  }
  double steps = static_cast<double>(lines - 1);
  double size = job.FontSize * resolution / PointsPerInch;
  size = std::min({size, area.width() / (CellPart * static_cast<double>(columns)), area.height() / (steps + LinePart)});
  double pitch = LinePart * size;
  if (steps > 0) pitch = std::min(pitch, (area.height() - LinePart * size) / steps);
  return {size, CellPart * size, AscentPart * size, pitch};
}

PagePainter::PagePainter(const runtime::PrintJob& job, QPagedPaintDevice& device)
    : job_(job),
      device_(device),
      grid_(FitGrid(job, device.pageLayout().paintRectPixels(device.logicalDpiX()).size(), device.logicalDpiX())),
      plain_(MakeTypeface(QFont::Normal)),
      bold_(MakeTypeface(QFont::Bold)) {}

PagePainter::Typeface PagePainter::MakeTypeface(QFont::Weight weight) const {
  QFont font(Shown(job_.FontName));
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setWeight(weight);
  Typeface face{QRawFont::fromFont(font), {}, {}};
  face.Font.setPixelSize(grid_.Size);
  for (std::size_t code = 0; code < face.Glyphs.size(); ++code) {
    char character = static_cast<char>(code);
    QString shown = Shown({&character, 1});
    face.Blank[code] = shown[0].isSpace() || !shown[0].isPrint();
    face.Glyphs[code] = face.Font.glyphIndexesForString(shown).value(0);
  }
  return face;
}

bool PagePainter::Paint() {
  if (!painter_.begin(&device_)) return false;
  for (const runtime::PrintedPage& page : job_.Pages) {
    if (&page != &job_.Pages.front() && !device_.newPage()) return false;
    PaintPage(page);
  }
  return painter_.end();
}

void PagePainter::PaintPage(const runtime::PrintedPage& page) {
  double base_line = grid_.Ascent;
  for (const runtime::PrintedLine& line : page.Lines) {
    if (!line.Text.empty()) PaintLine(line, base_line);
    base_line += grid_.Pitch;
  }
}

void PagePainter::PaintLine(const runtime::PrintedLine& line, double base_line) {
  const Typeface& face = line.Bold ? bold_ : plain_;
  double left = (line.From - 1) * grid_.Cell;
  glyphs_.clear();
  places_.clear();
  for (std::size_t at = 0; at < line.Text.size(); ++at) {
    auto code = static_cast<unsigned char>(line.Text[at]);
    if (face.Blank[code]) continue;
    glyphs_.append(face.Glyphs[code]);
    places_.append(QPointF(left + static_cast<double>(at) * grid_.Cell, 0));
  }
  QGlyphRun run;
  run.setRawFont(face.Font);
  run.setRawData(glyphs_.constData(), places_.constData(), static_cast<int>(glyphs_.size()));
  painter_.drawGlyphRun(QPointF(0, base_line), run);
  if (!line.Underline) return;
  painter_.fillRect(QRectF(left, base_line + face.Font.underlinePosition(),
                           static_cast<double>(line.Text.size()) * grid_.Cell, face.Font.lineThickness()),
                    Qt::black);
}

}  // namespace desktop
