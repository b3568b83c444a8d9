// All windows of the program, from the back to the front, and the desk that they stand on.
#pragma once

#include <vector>

#include "forms/desk.h"

namespace forms {

class Window;

class WindowStack {
 public:
  explicit WindowStack(forms::Desk& desk) : Desk(desk) {}
  forms::Desk& Desk;

  void Enlist(Window& window) { windows_.insert(windows_.begin(), &window); }
  void BringToFront(Window& window);
  const std::vector<Window*>& All() const { return windows_; }
  // The visible window in front; nullptr when none is visible.
  Window* Front() const;

 private:
  std::vector<Window*> windows_;
};

}  // namespace forms
