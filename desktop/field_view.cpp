// Sets the line edit to the box's text, alignment and colours.
#include "desktop/field_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/contrast.h"
#include "desktop/face.h"
#include "desktop/text.h"

namespace desktop {
namespace {

constexpr double SmallestPart = 0.65;  // of the full font size
constexpr int TextMargin = 4;          // pixels on either side of the text, away from the round corners
constexpr int CaretRoom = 4;           // pixels on either side, with those that the toolkit keeps free
constexpr double BandPart = 0.06;      // of the text's colour in every other row
constexpr double LinePart = 0.3;
constexpr double SeenContrast = 1.5;
constexpr QColor FocusFrame(0xF0, 0xA0, 0x00);

}  // namespace

FieldView::FieldView(forms::TextBox& box, QWidget& parent, CodePageValidator::Refused refused)
    : QLineEdit(&parent), ControlView(box), box_(box), cell_(ListCellOf(box)), validator_(*this, std::move(refused)) {
  setFrame(false);
  setFocusPolicy(Qt::TabFocus);
  setAccessibleName(AccessibleName(box));
  setReadOnly(!box.TakesTyping);
  setTextMargins(TextMargin, 0, TextMargin, 0);
}

void FieldView::Entered() {
  if (!text().isEmpty() && text().trimmed().isEmpty()) {
    selectAll();
  } else if (!caret_by_mouse_) {
    end(false);
  }
}

void FieldView::ApplyLook(const Grid& grid) {
  const forms::Look& look = box_.Look();
  full_size_ = grid.Font(look);
  FitFont();
  QPalette colours = palette();
  colours.setColor(QPalette::Base, ToColour(look.Back));
  colours.setColor(QPalette::Text, ToColour(look.Fore));
  colours.setColor(QPalette::Disabled, QPalette::Text, DisabledColour(ToColour(look.Fore), ToColour(look.Back)));
  colours.setColor(QPalette::Highlight, ToColour(look.Fore));
  colours.setColor(QPalette::HighlightedText, ToColour(look.Back));
  setPalette(colours);
}

void FieldView::ApplyContent() {
  Qt::Alignment wanted_alignment =
      (box_.Alignment() == forms::Align::Left ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter;
  if (alignment() != wanted_alignment) setAlignment(wanted_alignment);
  QString wanted_text = Shown(box_.Text());
  if (wanted_text == text()) return;
  mirroring_ = true;
  validator_.SetText(wanted_text);
  // Shows the start of a long text unless it is being edited.
  if (!box_.HoldsFocus()) home(false);
  mirroring_ = false;
  FitFont();
}

// Long texts are shown whole in a somewhat smaller font.
void FieldView::FitFont() {
  QFont font = full_size_;
  int smallest = static_cast<int>(full_size_.pixelSize() * SmallestPart);
  int room = width() - 2 * (TextMargin + CaretRoom);
  while (font.pixelSize() > smallest && QFontMetrics(font).horizontalAdvance(text()) > room)
    font.setPixelSize(font.pixelSize() - 1);
  if (font != this->font()) setFont(font);
}

// The frame of the focus stands out from the window around it, and a second one within from the box.
void FieldView::paintEvent(QPaintEvent* event) {
  PaintGround();
  QLineEdit::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  double corner = Corner();
  auto frame = [&](const QColor& ground, double inset, double line) {
    painter.setPen(
        QPen(StandingOut(FocusFrame, ground, MarkContrast), line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    double edge = inset + line / 2;
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(edge, edge, -edge, -edge), corner, corner);
  };
  frame(parentWidget()->palette().color(QPalette::Window), 0, 2);
  frame(palette().color(QPalette::Base), 2, 1);
}

double FieldView::Corner() const { return cell_ ? 0 : std::max(2.0, height() / 8.0); }

// A box has a line around it only if it would be lost in the window; the rows of the list of twenty have one below.
void FieldView::PaintGround() {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor back = palette().color(QPalette::Base);
  QColor fore = palette().color(QPalette::Text);
  if (cell_) {
    painter.fillRect(rect(), cell_->Row % 2 ? Mixed(back, fore, BandPart) : back);
    painter.fillRect(0, height() - 1, width(), 1, Mixed(back, fore, LinePart));
    return;
  }
  QColor around = parentWidget()->palette().color(QPalette::Window);
  bool lost = Contrast(back, around) < SeenContrast;
  painter.setPen(lost ? QPen(EdgeOn(around, fore), 1) : QPen(Qt::NoPen));
  painter.setBrush(back);
  double inset = lost ? 0.5 : 0;
  painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), Corner(), Corner());
}

}  // namespace desktop
