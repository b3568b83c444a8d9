// What the two status boxes of the record screen say.
#pragma once

#include <string_view>

namespace screen {

inline constexpr std::string_view AutoSaveOn = "Auto Save On";
inline constexpr std::string_view AutoSaveOff = "Auto Save Off";
inline constexpr std::string_view AutoSortOn = "Auto Sort On";
inline constexpr std::string_view AutoSortOff = "Auto Sort Off";

}  // namespace screen
