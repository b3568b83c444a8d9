// The four colour groups of the record screen and the controls of each.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "screen/frmPage1.h"

namespace prefs {

enum class Group { Background, TextBoxBackground, TextBoxText, TagText };

// File: contains the colour as a decimal number on one line. Default: red in the low byte.
struct GroupRow {
  Group Of;
  std::string_view File;
  forms::Colour Default;
};

// clang-format off
inline constexpr GroupRow Groups[] = {
  { Group::Background,        "BGColor",     0xFF0000 },
  { Group::TextBoxBackground, "txtBGColor",  0xFFFFFF },
  { Group::TextBoxText,       "txtForColor", 0xFF0000 },
  { Group::TagText,           "tagForColor", 0x00FFFF },
};
// clang-format on

constexpr const GroupRow& RowOf(Group group) { return Groups[static_cast<std::size_t>(group)]; }

// Where a colour comes from; some controls depend on it.
enum class Occasion { Start, Menu, Default };

// The controls that take a colour of this group.
std::vector<forms::Control*> ControlsOf(frmPage1& window, Group group, Occasion occasion);

}  // namespace prefs
