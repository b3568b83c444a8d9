// Looks of the opening windows: yellow headings and light grey lines on dark blue.
#pragma once

#include "forms/control.h"

namespace opening {

inline constexpr forms::Colour Evening = 0x4A1E10;
inline constexpr forms::Colour Gold = 0x4DE1FF;
inline constexpr forms::Colour Silver = 0xF0E8E4;

// clang-format off
//                                              fore     back      transparent  font     points  bold   border  lines
inline constexpr forms::Look HeadingLook    = { Gold,         Evening,  true,  "Arial", 20,    true,  false, forms::Align::Centre };
inline constexpr forms::Look FeatureLook    = { Gold,         Evening,  true,  "Arial", 11,    true,  false, forms::Align::Left };
inline constexpr forms::Look LineLook       = { Silver,       Evening,  true,  "Arial", 10,    false, false, forms::Align::Left };
inline constexpr forms::Look ChoiceLook     = { Gold,         Evening,  true,  "Arial", 10,    true };
inline constexpr forms::Look PushLook       = { forms::Black, 0xC0C0C0, false, "Arial", 11,    true };
// clang-format on

}  // namespace opening
