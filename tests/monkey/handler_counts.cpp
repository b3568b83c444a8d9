// Programs wire the same handlers in the same order, so a handler is known by its place in that order.
#include "tests/monkey/handler_counts.h"

#include <utility>

#include "forms/window.h"

namespace monkey {

void HandlerCounts::Watch(Program& program) {
  next_ = 0;
  for (forms::Window* window : program.Windows.All()) {
    Wrap(window->Load, window->Name + ".Load");
    Wrap(window->Unload, window->Name + ".Unload");
    Wrap(window->MouseMove, window->Name + ".MouseMove");
    for (forms::Control* control : window->Controls()) {
      const std::string& name = control->Name;
#define WRAP(Event) Wrap(control->Event, name + "." #Event);
      WRAP(Click)
      WRAP(DblClick)
      WRAP(GotFocus)
      WRAP(LostFocus)
      WRAP(MouseUp)
      WRAP(MouseMove)
      WRAP(KeyPress)
      WRAP(MouseDown)
      WRAP(Change)
#undef WRAP
    }
  }
}

void HandlerCounts::Wrap(forms::Handler& handler, const std::string& name) {
  if (!handler) return;
  if (next_ == counts_.size()) {
    names_.push_back(name);
    counts_.push_back(0);
  }
  handler = [run = std::move(handler), &count = counts_[next_++]] {
    ++count;
    run();
  };
}

std::vector<std::string> HandlerCounts::NeverRun() const {
  std::vector<std::string> never;
  for (std::size_t place = 0; place < counts_.size(); ++place) {
    if (counts_[place] == 0) never.push_back(names_[place]);
  }
  return never;
}

}  // namespace monkey
