// Looking up controls, windows, items and keys by the names that stories use.
#include "tests/story/names.h"

#include <algorithm>
#include <array>
#include <utility>

#include "runtime/code_page.h"

namespace story {
namespace {

// clang-format off
constexpr std::pair<std::string_view, forms::Key> Keys[] = {
  { "Tab",   forms::Key::Tab   }, { "Shift+Tab", forms::Key::ShiftTab }, { "Enter", forms::Key::Enter }, { "Esc",  forms::Key::Esc  },
  { "Space", forms::Key::Space }, { "Up",        forms::Key::Up       }, { "Down",  forms::Key::Down  }, { "Home", forms::Key::Home },
  { "End",   forms::Key::End   }, { "F1",        forms::Key::F1       },
};
// clang-format on

constexpr std::string_view Alt = "Alt+";

[[noreturn]] void Fail(std::string_view kind, std::string_view name) {
  throw Unplayable{"expected a " + std::string(kind) + ", got " + runtime::ToUtf8(name)};
}

}  // namespace

forms::Control* FindControl(const forms::WindowStack& windows, std::string_view name) {
  forms::Control* best = nullptr;
  bool best_visible = false;
  for (const forms::Window* window : windows.All()) {
    for (forms::Control* control : window->Controls()) {
      // The windows come from the back to the front.
      if (control->Name != name || (best_visible && !window->Visible())) continue;
      best = control;
      best_visible = window->Visible();
    }
  }
  return best;
}

forms::Control& ControlNamed(const forms::WindowStack& windows, std::string_view name) {
  forms::Control* control = FindControl(windows, name);
  if (!control) Fail("control of the program", name);
  return *control;
}

forms::ListBox& ListNamed(const forms::WindowStack& windows, std::string_view name) {
  forms::Control& control = ControlNamed(windows, name);
  if (control.Kind != forms::Kind::ListBox) Fail("list", name);
  return static_cast<forms::ListBox&>(control);
}

forms::Window* FindWindow(const forms::WindowStack& windows, std::string_view name) {
  auto window = std::find_if(windows.All().begin(), windows.All().end(),
                             [&](const forms::Window* candidate) { return candidate->Name == name; });
  return window == windows.All().end() ? nullptr : *window;
}

forms::Window& WindowNamed(const forms::WindowStack& windows, std::string_view name) {
  forms::Window* window = name.empty() ? windows.Front() : FindWindow(windows, name);
  if (!window) Fail("window of the program", name.empty() ? "none that is visible" : name);
  return *window;
}

int ItemNamed(const forms::ListBox& list, std::string_view item) {
  auto found = std::find(list.Items().begin(), list.Items().end(), item);
  if (found == list.Items().end()) Fail("item of " + list.Name, "\"" + std::string(item) + "\"");
  return static_cast<int>(found - list.Items().begin());
}

NamedKey KeyNamed(std::string_view text) {
  for (const auto& [name, key] : Keys) {
    if (name == text) return key;
  }
  if (text.size() == Alt.size() + 1 && text.starts_with(Alt)) return AltKey{text.back()};
  if (text.size() != 1) Fail("key or character", text);
  return text.front();
}

}  // namespace story
