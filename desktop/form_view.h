// One drawn window: its menu bar, and below it the surface with its controls. A control gets its widget when it is
// first shown.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "desktop/announcer.h"
#include "desktop/control_view.h"
#include "desktop/ground.h"
#include "desktop/list_table.h"
#include "desktop/menu_view.h"
#include "desktop/user_input.h"
#include "forms/window.h"

namespace desktop {

class NoticeLine;
class StackView;

class FormView final : public QWidget {
 public:
  FormView(forms::Window& window, StackView& all);
  ~FormView() override;

  // Updates the widgets of all changed controls, and the focus.
  void Sync();
  forms::Window& Window() const { return window_; }
  MenuView& Menu() { return menu_; }
  // The background on which the controls lie.
  QWidget& Surface() { return surface_; }
  // What is said of the window to those who do not see it.
  Announcer& Speech() { return speech_; }
  // The list of twenty; without rows on other windows.
  ListTable& List() { return list_; }
  // nullptr if the control has not been shown yet.
  ControlView* ViewOf(const forms::Control& control) const;
  // For menus, boxes and notices: in proportion to the window, and never smaller than the desktop's own.
  QFont TextFont() const;
  // From now on this window lies in front of the other, on every desktop.
  void LieOver(FormView& other);
  // Puts the notice line below the surface; nullptr for none. The window grows by the line's height as far as the
  // display has room, so that the form keeps its size.
  void PlaceNotices(NoticeLine* line);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  // What the surface leaves free.
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Slot {
    forms::Control* Control;
    bool Tag;
    std::unique_ptr<ControlView> View;
    QString Heard;
  };
  void MirrorControls();
  void MakeView(std::size_t index);
  void Hear(Slot& slot);
  void SyncFrame();
  void SyncFocus();
  void LayOut();
  void Grow(int pixels);
  QSize StartSize() const;
  void TakePlace();
  void KeepPlace();
  QRect SurfaceIn(const QRect& room) const;

  forms::Window& window_;
  StackView& stack_;
  UserInput input_;
  Ground surface_;
  MenuView menu_;
  std::vector<Slot> slots_;
  std::vector<ControlView*> changed_;
  Grid grid_;
  NoticeLine* notices_ = nullptr;
  int notices_height_ = 0;
  int grown_ = 0;  // pixels that the window gained by the notice line
  std::string title_;
  forms::Control* focus_ = nullptr;
  Announcer speech_{*this};
  ListTable list_;
};

}  // namespace desktop
