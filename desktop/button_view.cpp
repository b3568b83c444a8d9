// Paints buttons, option buttons and check boxes.
#include "desktop/button_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "desktop/artwork.h"
#include "desktop/contrast.h"
#include "desktop/text.h"

namespace desktop {
namespace {

constexpr int CaptionFlags = Qt::AlignCenter | Qt::TextShowMnemonic;

constexpr int SmallestFont = 6;  // pixels

// Of the ring or the square of an option.
double MarkSize(const QWidget& option) { return option.font().pixelSize() * 1.05; }

void PaintFace(QPainter& painter, const QWidget& button, const QColor& back, bool down) {
  QRectF face = QRectF(button.rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  QLinearGradient shade(face.topLeft(), face.bottomLeft());
  bool hovered = button.isEnabled() && button.underMouse() && !down;
  shade.setColorAt(down ? 1 : 0, back.lighter(hovered ? 130 : 118));
  shade.setColorAt(down ? 0 : 1, hovered ? back.lighter(108) : back.darker(104));
  double corner = std::max(2.0, face.height() / 14);
  painter.setPen(QPen(back.darker(170), 1));
  painter.setBrush(shade);
  painter.drawRoundedRect(face, corner, corner);
  if (!button.hasFocus()) return;
  painter.setPen(QPen(StandingOut(QColor(0x00, 0x40, 0xC0), back, MarkContrast), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(face.adjusted(1.5, 1.5, -1.5, -1.5), corner, corner);
}

// A ring or a square with its mark, as high as the text, and the caption to its right.
void PaintOption(QWidget& option, const forms::Captioned& control, bool round, bool marked, bool down) {
  QPainter painter(&option);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor fore = ToColour(control.Look().Fore);
  if (!option.isEnabled()) fore.setAlphaF(0.5F);
  double size = MarkSize(option);
  QRectF ring(2, (option.height() - size) / 2, size, size);
  painter.setPen(QPen(Qt::black, std::max(1.0, size / 14)));
  painter.setBrush(down ? QColor(0xD0, 0xD0, 0xD0) : QColor(Qt::white));
  round ? painter.drawEllipse(ring) : painter.drawRect(ring);
  if (marked && round) {
    painter.setBrush(Qt::black);
    double inset = size * 0.27;
    painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
  } else if (marked) {
    painter.setPen(QPen(Qt::black, size / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({ring.topLeft() + QPointF(size * 0.22, size * 0.52),
                                    ring.topLeft() + QPointF(size * 0.42, size * 0.74),
                                    ring.topLeft() + QPointF(size * 0.8, size * 0.26)}));
  }
  QRect words = CaptionArea(control, option);
  QString caption = Shown(control.Caption());
  painter.setPen(fore);
  painter.setFont(FittedFont(option.font(), caption, words.width()));
  int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
  painter.drawText(words, flags, caption);
  if (!option.hasFocus()) return;
  QColor ground = option.palette().color(QPalette::Window);
  if (control.Look().Transparent) ground = option.parentWidget()->palette().color(QPalette::Window);
  painter.setPen(QPen(StandingOut(fore, ground, MarkContrast), 2));
  painter.drawRect(painter.boundingRect(words, flags, caption).adjusted(-2, -1, 2, 1));
}

// Options have their own background, so that they stand out from what is below them.
void ApplyOptionLook(QWidget& option, const forms::Look& look, const Grid& grid) {
  option.setFont(grid.Font(look));
  QPalette colours = option.palette();
  colours.setColor(QPalette::Window, ToColour(look.Back));
  option.setPalette(colours);
  option.setBackgroundRole(QPalette::Window);
  option.setAutoFillBackground(!look.Transparent);
}

}  // namespace

QFont FittedFont(QFont font, const QString& text, int width) {
  while (font.pixelSize() > SmallestFont && QFontMetrics(font).size(Qt::TextShowMnemonic, text).width() > width)
    font.setPixelSize(font.pixelSize() - 1);
  return font;
}

QRect CaptionArea(const forms::Captioned& control, const QWidget& widget) {
  if (control.Kind == forms::Kind::Button) return widget.rect().adjusted(3, 2, -3, -2);
  return widget.rect().adjusted(static_cast<int>(MarkSize(widget) * 1.45) + 2, 0, 0, 0);
}

ButtonView::ButtonView(forms::Button& button, QWidget& parent)
    : QPushButton(&parent), ControlView(button), button_(button) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
}

void ButtonView::ApplyLook(const Grid& grid) {
  setFont(grid.Font(button_.Look()));
  update();
}

void ButtonView::ApplyContent() {
  setAccessibleName(AccessibleName(button_));
  update();
}

void ButtonView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintFace(painter, *this, ToColour(button_.Look().Back), isDown());
  if (isDown()) painter.translate(1, 1);
  QString caption = Shown(button_.Caption());
  QRect words = CaptionArea(button_, *this);
  if (!button_.Icon.empty()) {
    int text_height = caption.isEmpty() ? 0 : QFontMetrics(font()).height();
    int side = std::min(words.width(), words.height() - text_height - 2);
    QRect area(words.left() + (words.width() - side) / 2, words.top() + 1, side, side);
    painter.setOpacity(isEnabled() ? 1 : 0.35);
    painter.drawPixmap(area, Artwork(button_.Icon, area.size(), devicePixelRatioF()));
    painter.setOpacity(1);
    words.setTop(words.bottom() - text_height + 1);
  }
  painter.setFont(FittedFont(font(), caption, words.width()));
  QColor fore = ToColour(button_.Look().Fore);
  if (!isEnabled()) fore.setAlphaF(0.4F);
  painter.setPen(fore);
  painter.drawText(words, CaptionFlags, caption);
}

OptionView::OptionView(forms::OptionButton& option, QWidget& parent)
    : QRadioButton(&parent), ControlView(option), option_(option) {
  setFocusPolicy(Qt::TabFocus);
  setAutoExclusive(false);
}

void OptionView::ApplyLook(const Grid& grid) { ApplyOptionLook(*this, option_.Look(), grid); }

void OptionView::ApplyContent() {
  setAccessibleName(AccessibleName(option_));
  setChecked(option_.Value());
  update();
}

void OptionView::paintEvent(QPaintEvent*) { PaintOption(*this, option_, true, option_.Value(), isDown()); }

CheckView::CheckView(forms::CheckBox& check, QWidget& parent) : QCheckBox(&parent), ControlView(check), check_(check) {
  setFocusPolicy(Qt::TabFocus);
}

void CheckView::ApplyLook(const Grid& grid) { ApplyOptionLook(*this, check_.Look(), grid); }

void CheckView::ApplyContent() {
  setAccessibleName(AccessibleName(check_));
  setChecked(check_.Value());
  update();
}

void CheckView::paintEvent(QPaintEvent*) { PaintOption(*this, check_, false, check_.Value(), isDown()); }

}  // namespace desktop
