// What a story's names stand for: controls and windows of the program, and keys.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "forms/window.h"
#include "forms/window_stack.h"
#include "tests/story/player.h"

namespace story {

// The control of that name: in the window in front, then in the other visible windows, then in any; throws Unplayable
// where there is none.
forms::Control& ControlNamed(const forms::WindowStack& windows, std::string_view name);
// The same for a control of one class; throws Unplayable where it is of another.
forms::ListBox& ListNamed(const forms::WindowStack& windows, std::string_view name);

// nullptr where there is none of that name.
forms::Control* FindControl(const forms::WindowStack& windows, std::string_view name);
forms::Window* FindWindow(const forms::WindowStack& windows, std::string_view name);
// The window of that name, for "" the visible one in front; throws Unplayable where there is none.
forms::Window& WindowNamed(const forms::WindowStack& windows, std::string_view name);

// The position of an item, from 0; throws Unplayable where the list has none of that text.
int ItemNamed(const forms::ListBox& list, std::string_view item);

// "Alt+X" with its letter.
struct AltKey {
  char Letter;
};
// A named key, a key with Alt, or a character; throws Unplayable for any other text.
using NamedKey = std::variant<forms::Key, AltKey, char>;
NamedKey KeyNamed(std::string_view text);

}  // namespace story
