// All drawn windows of the program, and the one path on which the user's events reach the forms.
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "desktop/form_view.h"
#include "forms/window_stack.h"

namespace desktop {

class StackView {
 public:
  // Delivers one user event to the program.
  using Delivery = std::function<void(const std::function<void()>&)>;
  StackView(forms::WindowStack& windows, Delivery deliver);

  // Delivers the event, then updates what is drawn. Does nothing while another event runs.
  void Deliver(const std::function<void()>& event);
  // Updates all drawn windows; a window is first drawn when it becomes visible.
  void Sync();
  // Updates and paints before it returns; input is held back meanwhile.
  void Paint();

  // nullptr if the window has not been drawn yet.
  FormView* ViewOf(const forms::Window& window) const;
  // The drawn front window; nullptr if none is visible.
  FormView* Front() const;

 private:
  forms::WindowStack& windows_;
  Delivery deliver_;
  bool delivering_ = false;
  const forms::Window* front_ = nullptr;
  std::unordered_map<const forms::Window*, std::unique_ptr<FormView>> views_;
};

}  // namespace desktop
