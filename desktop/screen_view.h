// All windows of the program as drawn, and the one road on which the user's events reach the forms.
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "desktop/form_view.h"
#include "forms/window_stack.h"

namespace desktop {

class ScreenView {
 public:
  // Hands one event of the user to the program.
  using Delivery = std::function<void(const std::function<void()>&)>;
  ScreenView(forms::WindowStack& windows, Delivery deliver);

  // Runs the event and then brings what is drawn up to date. Nothing while another event runs.
  void Deliver(const std::function<void()>& event);
  // Every drawn window as its form says; a window is drawn from the first time that it is visible.
  void Sync();
  // Sync, and what has changed is painted before it returns; the user's doings wait meanwhile.
  void Paint();

  // nullptr where the window has not been drawn yet.
  FormView* ViewOf(const forms::Window& window) const;
  // The drawn window in front; nullptr when none is visible.
  FormView* Front() const;

 private:
  forms::WindowStack& windows_;
  Delivery deliver_;
  bool delivering_ = false;
  const forms::Window* front_ = nullptr;
  std::unordered_map<const forms::Window*, std::unique_ptr<FormView>> views_;
};

}  // namespace desktop
