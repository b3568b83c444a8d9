// What all views share, and which class draws which kind of control.
#include "desktop/control_view.h"

#include <utility>

#include "desktop/button_view.h"
#include "desktop/contrast.h"
#include "desktop/field_view.h"
#include "desktop/label_view.h"
#include "desktop/list_view.h"

namespace desktop {

void ControlView::Mirror(const Grid& grid) {
  bool moved = !(grid == grid_);
  grid_ = grid;
  if (moved) Widget().setGeometry(grid.Area(control_.Place));
  if (LookChanged() || moved) ApplyLook(grid);
  seen_ = control_.Version();
  ApplyContent();
  if (control_.Enabled()) Widget().setEnabled(true);
  if (control_.Visible()) Widget().setVisible(true);
}

void ControlView::Withdraw() {
  if (!control_.Visible()) Widget().setVisible(false);
  if (!control_.Enabled()) Widget().setEnabled(false);
}

bool ControlView::LookChanged() {
  const forms::Look& look = control_.Look();
  if (look.Fore == fore_ && look.Back == back_ && look.FontSize == points_) return false;
  fore_ = look.Fore;
  back_ = look.Back;
  points_ = look.FontSize;
  return true;
}

std::unique_ptr<ControlView> MakeView(forms::Control& control, QWidget& parent, bool tag,
                                      CodePageValidator::Refused refused) {
  switch (control.Kind) {
    case forms::Kind::TextBox:
      return std::make_unique<FieldView>(static_cast<forms::TextBox&>(control), parent, std::move(refused));
    case forms::Kind::ListBox:
      return std::make_unique<ListView>(static_cast<forms::ListBox&>(control), parent);
    case forms::Kind::Button:
      return std::make_unique<ButtonView>(static_cast<forms::Button&>(control), parent);
    case forms::Kind::OptionButton:
      return std::make_unique<OptionView>(static_cast<forms::OptionButton&>(control), parent);
    case forms::Kind::CheckBox:
      return std::make_unique<CheckView>(static_cast<forms::CheckBox&>(control), parent);
    case forms::Kind::Picture:
      return std::make_unique<PictureView>(static_cast<forms::Picture&>(control), parent);
    case forms::Kind::Label:
      return std::make_unique<LabelView>(static_cast<forms::Label&>(control), parent, tag);
    case forms::Kind::Strip:
    case forms::Kind::MenuItem:
      break;
  }
  return std::make_unique<StripView>(control, parent);
}

QColor ToColour(forms::Colour colour) {
  return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF), static_cast<int>(colour >> 16 & 0xFF)};
}

QColor DisabledColour(const QColor& fore, const QColor& back) {
  QColor paler = fore;
  for (double part : {0.0, 0.2, 0.4})
    if (QColor mix = Mixed(fore, back, part); Contrast(mix, back) >= TextContrast) paler = mix;
  return paler;
}

}  // namespace desktop
