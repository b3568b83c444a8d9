// The window's focus: who holds it, who gets it next.
#include "forms/window.h"

#include <algorithm>
#include <utility>

#include "forms/window_stack.h"

namespace forms {

Window::Window(WindowStack& windows, std::string name, std::string_view caption, int width, int height)
    : Name(std::move(name)), Width(width), Height(height), windows_(&windows), caption_(caption) {
  windows.Enlist(*this);
}

void Window::Show() {
  if (!std::exchange(loaded_, true)) Run(Load);
  windows_->BringToFront(*this);
  visible_ = true;
  if (std::exchange(seen_, true)) return;
  if (Control* first = NextStop(NoTab, 1)) MoveFocus(*first);
}

bool Window::InSight() const {
  return visible_ && !(HiddenBehind && HiddenBehind->visible_ && windows_->InFrontOf(*HiddenBehind, *this));
}

// Whether another shown button lies over the whole of this one.
bool Window::Covered(const Control& control) const {
  if (control.Kind != Kind::Button) return false;
  auto over = std::find(controls_.begin(), controls_.end(), &control);
  return std::any_of(over + 1, controls_.end(), [&](const Control* other) {
    return other->Kind == Kind::Button && other->Visible() && other->Place.Contains(control.Place);
  });
}

// Of a pair of option buttons only the selected one is a stop.
bool Window::IsStop(const Control& control) const {
  if (!control.CanHoldFocus() || !control.Visible() || !control.Enabled() || control.Ids.Tab == NoTab) return false;
  if (Covered(control)) return false;
  return control.Kind != Kind::OptionButton || static_cast<const OptionButton&>(control).Value();
}

// The stop after (step 1) or before (step -1) a tab position, in a circle; nullptr when there is none.
Control* Window::NextStop(int tab, int step) const {
  Control* nearest = nullptr;
  Control* outermost = nullptr;
  for (Control* control : controls_) {
    if (!IsStop(*control)) continue;
    auto nearer = [&](const Control* other) { return !other || (other->Ids.Tab - control->Ids.Tab) * step > 0; };
    if ((control->Ids.Tab - tab) * step > 0 && nearer(nearest)) nearest = control;
    if (nearer(outermost)) outermost = control;
  }
  return nearest ? nearest : outermost;
}

void Window::MoveFocus(Control& target) {
  if (!visible_ || &target == focus_ || !target.Visible() || !target.Enabled() || !target.CanHoldFocus()) return;
  unsigned moves = ++focus_moves_;
  if (Control* holder = std::exchange(focus_, nullptr)) Run(holder->LostFocus);
  if (moves != focus_moves_) return;
  if (target.Visible() && target.Enabled()) {
    GiveFocus(target);
  } else if (Control* next = NextStop(target.Ids.Tab, 1)) {
    GiveFocus(*next);
  }
}

// A field's topic, or else the control's help id, counts as set before the handlers have their say.
void Window::GiveFocus(Control& control) {
  focus_ = &control;
  if (int topic = control.Ids.TopicId ? control.Ids.TopicId : control.Ids.HelpId) HelpContext = topic;
  Run(control.GotFocus);
}

void Window::PassFocusOn(Control& control) {
  if (focus_ != &control || steps_as_one_ > 0) return;
  if (Control* next = NextStop(control.Ids.Tab, 1)) {
    MoveFocus(*next);
  } else {
    ++focus_moves_;
    focus_ = nullptr;
    Run(control.LostFocus);
  }
}

void Window::PassFocusOnIfCovered() {
  if (focus_ && Covered(*focus_)) PassFocusOn(*focus_);
}

void Window::PassFocusOnAfter(const Handler& step) {
  ++steps_as_one_;
  step();
  --steps_as_one_;
  if (focus_ && (!focus_->Visible() || !focus_->Enabled())) PassFocusOn(*focus_);
  PassFocusOnIfCovered();
}

// Moves the focus as a click or a hot key does; false where the doing ends there.
bool Window::FocusByUser(Control& control) {
  if (!control.CanHoldFocus() || focus_ == &control) return true;
  unsigned boxes = windows_->Desk.BoxesShown();
  MoveFocus(control);
  return boxes == windows_->Desk.BoxesShown() && focus_ == &control;
}

Control* Window::ByHotKey(char letter) const {
  int from = focus_ ? focus_->Ids.Tab : NoTab;
  Control* nearest = nullptr;
  Control* first = nullptr;
  for (Control* control : controls_) {
    bool option = control->Kind == Kind::OptionButton;
    if (control->Kind != Kind::Button && !option && control->Kind != Kind::CheckBox) continue;
    if (!Reachable(*control) || HotKey(static_cast<Captioned*>(control)->Caption()) != letter) continue;
    if (option && static_cast<OptionButton*>(control)->Value()) continue;
    if (control->Ids.Tab > from && (!nearest || control->Ids.Tab < nearest->Ids.Tab)) nearest = control;
    if (!first || control->Ids.Tab < first->Ids.Tab) first = control;
  }
  return nearest ? nearest : first;
}

}  // namespace forms
