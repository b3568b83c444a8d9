// Sets the line edit to the box's text, alignment and colours.
#include "desktop/field_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <utility>

#include "desktop/contrast.h"
#include "desktop/text.h"

namespace desktop {
namespace {

constexpr double SmallestPart = 0.65;  // of the full font size
constexpr int TextMargin = 4;          // pixels, including room for the caret
constexpr QColor Frame(0x90, 0x90, 0xA8);
constexpr QColor FocusFrame(0xF0, 0xA0, 0x00);

}  // namespace

FieldView::FieldView(forms::TextBox& box, QWidget& parent, CodePageValidator::Refused refused)
    : QLineEdit(&parent), ControlView(box), box_(box), validator_(*this, std::move(refused)) {
  setFrame(false);
  setFocusPolicy(Qt::TabFocus);
  setAccessibleName(AccessibleName(box));
  setReadOnly(!box.TakesTyping);
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
  int room = width() - 2 * TextMargin;
  while (font.pixelSize() > smallest && QFontMetrics(font).horizontalAdvance(text()) > room)
    font.setPixelSize(font.pixelSize() - 1);
  if (font != this->font()) setFont(font);
}

// The frame of the focus stands out from the window around it, and a second one within from the box.
void FieldView::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  auto frame = [&](const QColor& colour, double inset, double line) {
    painter.setPen(QPen(colour, line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    double edge = inset + line / 2;
    painter.drawRect(QRectF(rect()).adjusted(edge, edge, -edge, -edge));
  };
  if (!hasFocus()) {
    frame(Frame, 0, 1);
    return;
  }
  QColor around = parentWidget()->palette().color(QPalette::Window);
  frame(StandingOut(FocusFrame, around, MarkContrast), 0, 2);
  frame(StandingOut(FocusFrame, palette().color(QPalette::Base), MarkContrast), 2, 1);
}

}  // namespace desktop
