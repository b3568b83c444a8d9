// The order of the windows.
#include "forms/window_stack.h"

#include <algorithm>

#include "forms/window.h"

namespace forms {

void WindowStack::BringToFront(Window& window) {
  windows_.erase(std::find(windows_.begin(), windows_.end(), &window));
  windows_.push_back(&window);
}

Window* WindowStack::Front() const {
  auto front = std::find_if(windows_.rbegin(), windows_.rend(), [](const Window* window) { return window->Visible(); });
  return front == windows_.rend() ? nullptr : *front;
}

}  // namespace forms
