// A key file of any bytes, most of them near to keys.
#pragma once

#include <string>

#include "tests/fuzz/fuzzing.h"

namespace fuzz {

// A few keys of short inputs; the last may be cut off.
std::string AnyKeys(Input& input);

// Whether there are keys, none is cut off and each has a title.
bool AreWhole(std::string_view keys);

}  // namespace fuzz
