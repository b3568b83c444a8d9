// Arrays of many megabytes.
#pragma once

#include <cstddef>
#include <memory>

namespace runtime {

// Asks the system for large pages: the memory then takes fewer page faults to fill and is faster to look up. A refusal
// costs nothing but time.
void PreferLargePages(void* memory, std::size_t bytes);

// Not initialized.
template <typename Element>
std::unique_ptr<Element[]> MakeLargeArray(std::size_t count) {
  auto array = std::make_unique_for_overwrite<Element[]>(count);
  PreferLargePages(array.get(), count * sizeof(Element));
  return array;
}

}  // namespace runtime
