// Halves the items, so that two workers can sort them.
#pragma once

#include <array>
#include <span>

#include "sort/items.h"
#include "sort/workers.h"

namespace sort {

// Copies the items to the target: those below a middle window, then the rest, each in the old order. Items must have
// their first window. The target must have room for two items more.
std::array<std::span<Item>, 2> Divide(std::span<const Item> items, Item* target, Workers& workers);

}  // namespace sort
