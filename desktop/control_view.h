// What draws one control: a native widget that is set to what the control says, and decides nothing itself.
#pragma once

#include <QColor>
#include <QWidget>
#include <memory>

#include "desktop/grid.h"
#include "forms/controls.h"

namespace desktop {

class ControlView {
 public:
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;
  virtual ~ControlView() = default;

  virtual QWidget& Widget() = 0;
  // The part that the mouse meets; of most kinds the widget itself.
  virtual QWidget& Face() { return Widget(); }
  // Place, looks and content as the control has them; shown and enabled where the control is.
  void Mirror(const Grid& grid);
  // Hidden or disabled where the control is: apart from Mirror, so that the focus can leave first.
  void Withdraw();
  // The widget has got the focus from the form.
  virtual void Entered() {}

  forms::Control& Control() const { return control_; }
  // The user has changed the widget by himself: the next Mirror sets it whatever the control's version.
  void Forget() { seen_ = 0; }
  bool UpToDate() const { return seen_ == control_.Version(); }

 protected:
  explicit ControlView(forms::Control& control) : control_(control) {}
  // Font and colours.
  virtual void Dress(const Grid& grid) = 0;
  // Text, items, selection.
  virtual void Fill() = 0;

 private:
  bool TakeLook();

  forms::Control& control_;
  unsigned seen_ = 0;
  Grid grid_;
  forms::Colour fore_ = 0, back_ = 0;
  double points_ = -1;
};

// The view of any kind but a menu item. Parent: the window's surface. Tag: a label that names a field, whose padding is
// folded.
std::unique_ptr<ControlView> MakeView(forms::Control& control, QWidget& parent, bool tag);

QColor ToColour(forms::Colour colour);
// The letters of what is disabled.
QColor Faded(const QColor& fore, const QColor& back);
// What a screen reader says for the control.
QString AccessibleName(const forms::Control& control);

}  // namespace desktop
