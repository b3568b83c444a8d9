// Halves the items, so that two workers can sort them.
#pragma once

#include <array>
#include <span>

#include "sort/items.h"
#include "sort/workers.h"

namespace sort {

// Included: 1 or 0 for each entry, or nullptr if all are to be sorted.
inline bool Sorts(const Item& item, const unsigned char* included) { return !included || included[item.Entry] != 0; }

// Copies the items to be sorted to the target, those below a middle window and the rest, each in the old order. Items
// must have their first window. The target must have room for two items more.
std::array<std::span<Item>, 2> Divide(std::span<const Item> items, const unsigned char* included, Item* target,
                                      Workers& workers);

}  // namespace sort
