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
  // The window in front of all that are in sight; nullptr if none is.
  Window* Front() const;
  bool InFrontOf(const Window& one, const Window& other) const;
  // Whether another window is modal and visible.
  bool BlockedByModal(const Window& window) const;

 private:
  std::vector<Window*> windows_;
};

}  // namespace forms
