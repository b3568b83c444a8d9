// Divides the items by the first byte of their windows, so that two workers can sort them.
#pragma once

#include <array>
#include <span>

#include "sort/items.h"
#include "sort/workers.h"

namespace sort {

// Where the items of each byte begin; one more for the end of the last.
using Division = std::array<std::size_t, 257>;

// Copies the items to the target, which has as many: by byte, for each in the old order. Items must have their first
// window. Workers: or nullptr.
Division Divide(std::span<const Item> items, std::span<Item> target, Workers* workers);

}  // namespace sort
