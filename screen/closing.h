// What is asked while a film is open and the program is to end.
#pragma once

#include <string_view>

namespace screen {

inline constexpr std::string_view UnsavedQuestion =
    "You have not saved your work. To save your work hit Yes, else hit No and quit";

}  // namespace screen
