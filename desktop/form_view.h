// One drawn window: its menu bar, and below it the surface with its controls. A control gets its widget when it is
// first shown.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/menu_view.h"
#include "desktop/user_input.h"
#include "forms/window.h"

namespace desktop {

class StackView;

class FormView final : public QWidget {
 public:
  FormView(forms::Window& window, StackView& all);

  // Updates the widgets of all changed controls, and the focus.
  void Sync();
  forms::Window& Window() const { return window_; }
  MenuView& Menu() { return menu_; }
  // The background on which the controls lie.
  QWidget& Surface() { return surface_; }
  // nullptr if the control has not been shown yet.
  ControlView* ViewOf(const forms::Control& control) const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Slot {
    forms::Control* Control;
    bool Tag;
    std::unique_ptr<ControlView> View;
  };
  void MirrorControls();
  void MakeView(std::size_t index);
  void SyncFrame();
  void SyncFocus();
  void LayOut();
  QSize StartSize() const;

  forms::Window& window_;
  StackView& stack_;
  UserInput input_;
  QWidget surface_;
  MenuView menu_;
  std::vector<Slot> slots_;
  std::vector<ControlView*> changed_;
  Grid grid_;
  std::string title_;
  forms::Control* focus_ = nullptr;
};

}  // namespace desktop
