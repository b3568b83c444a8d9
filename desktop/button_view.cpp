// Paints buttons, option buttons and check boxes.
#include "desktop/button_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "desktop/artwork.h"
#include "desktop/contrast.h"
#include "desktop/face.h"
#include "desktop/text.h"

namespace desktop {
namespace {

constexpr int CaptionFlags = Qt::AlignCenter | Qt::TextShowMnemonic;

constexpr int SmallestFont = 6;         // pixels
constexpr double ToolbarPoints = 9.75;  // of all captions below pictures
constexpr double PicturePart = 0.9;     // of the room above the caption
constexpr QColor FocusMark(0x00, 0x40, 0xC0);

// Of the ring or the square of an option.
double MarkSize(const QWidget& option) { return option.font().pixelSize() * 1.05; }

ButtonFace FaceOf(const QPushButton& button, const forms::Button& control) {
  ButtonFace face{Lit(ToColour(control.Look().Back)), button.parentWidget()->palette().color(QPalette::Window),
                  FocusMark};
  face.Flat = !control.Icon.empty();
  if (face.Flat) face.Ground = face.Back;  // of the toolbar
  face.Enabled = button.isEnabled();
  face.Hovered = button.underMouse();
  face.Down = button.isDown();
  face.Focused = button.hasFocus();
  return face;
}

// The mark, as high as the text, and the caption to its right. An option of the window's own colour paints no ground,
// so that a band of the window shows through.
void PaintOption(QWidget& option, const forms::Captioned& control, bool round, bool set, bool down) {
  QPainter painter(&option);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor around = option.parentWidget()->palette().color(QPalette::Window);
  QColor ground = control.Look().Transparent ? around : ToColour(control.Look().Back);
  if (ground != around) painter.fillRect(option.rect(), ground);
  QColor fore = ToColour(control.Look().Fore);
  if (!option.isEnabled()) fore = DisabledColour(fore, ground);
  QColor colour = StandingOut(fore, ground, MarkContrast);
  double size = MarkSize(option);
  bool hovered = option.isEnabled() && option.underMouse();
  PaintMark(painter, {2, (option.height() - size) / 2, size, size}, {colour, ground, round, set, hovered, down});
  QRect words = CaptionArea(control, option);
  QString caption = Shown(control.Caption());
  painter.setPen(fore);
  painter.setFont(FittedFont(option.font(), caption, words.width()));
  int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
  painter.drawText(words, flags, caption);
  if (!option.hasFocus()) return;
  painter.setPen(QPen(colour, 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(painter.boundingRect(words, flags, caption)).adjusted(-3, -1, 3, 1), 3, 3);
}

void ApplyOptionLook(QWidget& option, const forms::Look& look, const Grid& grid) {
  option.setFont(grid.Font(look));
  option.update();
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
  QFont font = grid.Font(button_.Look());
  if (!button_.Icon.empty()) {
    font.setPixelSize(grid.Pixels(ToolbarPoints));
    font.setBold(false);
  }
  setFont(font);
  update();
}

void ButtonView::ApplyContent() {
  setAccessibleName(AccessibleName(button_));
  update();
}

void ButtonView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  ButtonFace face = FaceOf(*this, button_);
  PaintFace(painter, rect(), face, std::max(3.0, height() / 12.0));
  QString caption = Shown(button_.Caption());
  QRect words = CaptionArea(button_, *this);
  if (!button_.Icon.empty()) {
    int text_height = caption.isEmpty() ? 0 : QFontMetrics(font()).height();
    int side = static_cast<int>(std::min(words.width(), words.height() - text_height) * PicturePart);
    int above = (words.height() - text_height - side) / 2;
    QRect area(words.left() + (words.width() - side) / 2, words.top() + above, side, side);
    painter.setOpacity(isEnabled() ? 1 : 0.35);
    painter.drawPixmap(area, Artwork(button_.Icon, area.size(), devicePixelRatioF()));
    painter.setOpacity(1);
    words.setTop(words.bottom() - text_height + 1);
  }
  painter.setFont(FittedFont(font(), caption, words.width()));
  painter.setPen(CaptionColour(ToColour(button_.Look().Fore), face));
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
