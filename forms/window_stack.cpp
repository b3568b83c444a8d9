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
  auto front = std::find_if(windows_.rbegin(), windows_.rend(), [](const Window* window) { return window->InSight(); });
  return front == windows_.rend() ? nullptr : *front;
}

bool WindowStack::InFrontOf(const Window& one, const Window& other) const {
  return std::find(windows_.begin(), windows_.end(), &one) > std::find(windows_.begin(), windows_.end(), &other);
}

bool WindowStack::BlockedByModal(const Window& window) const {
  return std::any_of(windows_.begin(), windows_.end(),
                     [&window](const Window* other) { return other != &window && other->Modal && other->Visible(); });
}

}  // namespace forms
