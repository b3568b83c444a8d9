// Draws one control: a native widget that mirrors the control and decides nothing itself.
#pragma once

#include <QColor>
#include <QWidget>
#include <memory>

#include "desktop/code_page_validator.h"
#include "desktop/grid.h"
#include "forms/controls.h"

namespace desktop {

class ControlView {
 public:
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;
  virtual ~ControlView() = default;

  virtual QWidget& Widget() = 0;
  // The part that gets the mouse events; the widget itself for most kinds.
  virtual QWidget& Face() { return Widget(); }
  // Copies geometry, look and content; shows and enables the widget if the control is visible and enabled.
  void Mirror(const Grid& grid);
  // Hides and disables the widget if the control is. Separate from Mirror, so that the focus can leave first.
  void Withdraw();
  // The form has given the widget the focus.
  virtual void Entered() {}

  forms::Control& Control() const { return control_; }
  // The user has changed the widget: the next Mirror resets it even if the control is unchanged.
  void Forget() { seen_ = 0; }
  bool UpToDate() const { return seen_ == control_.Version(); }

 protected:
  explicit ControlView(forms::Control& control) : control_(control) {}
  // Font and colours.
  virtual void ApplyLook(const Grid& grid) = 0;
  // Text, items, selection.
  virtual void ApplyContent() = 0;

 private:
  bool LookChanged();

  forms::Control& control_;
  unsigned seen_ = 0;
  Grid grid_;
  forms::Colour fore_ = 0, back_ = 0;
  double points_ = -1;
};

// The view of a control other than a menu item. Parent: the window's surface. Tag: a label that names a field; its
// padding is folded. Refused: called with the pasted characters that a text box did not take.
std::unique_ptr<ControlView> MakeView(forms::Control& control, QWidget& parent, bool tag,
                                      CodePageValidator::Refused refused);

QColor ToColour(forms::Colour colour);
// Disabled text colour: paler, as far as it can still be read.
QColor DisabledColour(const QColor& fore, const QColor& back);
// What a screen reader says for the control; "" for a picture that is only there to be looked at.
QString AccessibleName(const forms::Control& control);
// What it says of a pick list that opens: its field, and what that has already taken. "" for a list without a field.
QString OpenedWords(const forms::ListBox& list);

}  // namespace desktop
