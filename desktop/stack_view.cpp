// Draws the windows in stacking order.
#include "desktop/stack_view.h"

#include <QCoreApplication>
#include <utility>

#include "forms/window.h"

namespace desktop {

StackView::StackView(forms::WindowStack& windows, Delivery deliver) : windows_(windows), deliver_(std::move(deliver)) {}

void StackView::Deliver(const std::function<void()>& event) {
  if (delivering_) return;
  delivering_ = true;
  deliver_(event);
  delivering_ = false;
  Sync();
}

void StackView::Sync() {
  for (forms::Window* window : windows_.All()) {
    std::unique_ptr<FormView>* view = nullptr;
    if (auto found = views_.find(window); found != views_.end()) {
      view = &found->second;
    } else if (window->Visible()) {
      view = &views_.emplace(window, std::make_unique<FormView>(*window, *this)).first->second;
    }
    if (view) (*view)->Sync();
  }
  const forms::Window* front = windows_.Front();
  if (std::exchange(front_, front) == front || !front) return;
  FormView& view = *ViewOf(*front);
  view.raise();
  view.activateWindow();
}

void StackView::Paint() {
  Sync();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

FormView* StackView::ViewOf(const forms::Window& window) const {
  auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second.get();
}

FormView* StackView::Front() const {
  const forms::Window* front = windows_.Front();
  return front ? ViewOf(*front) : nullptr;
}

}  // namespace desktop
