// The key files as the views walk them: 40 characters of title, 7 of record number, a line end.
#pragma once

#include "screen/frmPage1.h"

namespace browse {

inline constexpr int KeyLength = 49;
inline constexpr int KeyTitleWidth = 40;

}  // namespace browse
