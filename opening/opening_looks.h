// Looks of the opening windows: yellow headings and light grey lines on dark blue.
#pragma once

#include "forms/control.h"

namespace opening {

inline constexpr forms::Colour Evening = 0x4A1E10;
inline constexpr forms::Colour Gold = 0x4DE1FF;
inline constexpr forms::Colour Silver = 0xF0E8E4;

// clang-format off
inline constexpr forms::Look HeadingLook = { .Fore = Gold,         .Back = Evening,  .Transparent = true, .FontSize = 20, .Bold = true };
inline constexpr forms::Look FeatureLook = { .Fore = Gold,         .Back = Evening,  .Transparent = true, .FontSize = 11, .Bold = true, .Lines = forms::Align::Left };
inline constexpr forms::Look LineLook    = { .Fore = Silver,       .Back = Evening,  .Transparent = true, .FontSize = 10, .Lines = forms::Align::Left };
inline constexpr forms::Look ChoiceLook  = { .Fore = Gold,         .Back = Evening,  .Transparent = true, .FontSize = 10, .Bold = true };
inline constexpr forms::Look PushLook    = { .Fore = forms::Black, .Back = 0xC0C0C0, .FontSize = 11, .Bold = true };
// clang-format on

}  // namespace opening
