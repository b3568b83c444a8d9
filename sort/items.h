// The order of entries in memory: by the first window of each, and among equal ones by the further windows.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "sort/layout.h"

namespace sort {

// An entry by its place in the table of entries, with a window of what is compared.
struct SortItem {
  std::uint32_t Upper, Lower;  // the halves of the window
  std::uint32_t Entry;

  std::uint64_t Window() const { return std::uint64_t{Upper} << 32 | Lower; }
  void SetWindow(std::uint64_t window) {
    Upper = static_cast<std::uint32_t>(window >> 32);
    Lower = static_cast<std::uint32_t>(window);
  }
};

// Calls use(entry) for the entry of each item, in their order; entries as for ItemSorter. Entries lie all over memory,
// so both ends of each are asked for some time before its turn.
template <typename Use>
void ForEachEntry(std::span<const SortItem> items, const char* entries, std::size_t entry_length, Use&& use) {
  constexpr std::size_t Ahead = 12;
  for (std::size_t at = 0; at < items.size(); ++at) {
    if (at + Ahead < items.size()) {
      const char* later = entries + items[at + Ahead].Entry * entry_length;
      __builtin_prefetch(later);
      __builtin_prefetch(later + entry_length - 1);
    }
    use(entries + items[at].Entry * entry_length);
  }
}

class ItemSorter {
 public:
  // Entries: the table of entries, one after the other.
  ItemSorter(const SortLayout& layout, const char* entries) : layout_(layout), entries_(entries) {}

  // Items hold their first window and stand in the order of their entries, which equal ones keep; the other windows are
  // overwritten. Scratch is as long as items.
  void Sort(std::span<SortItem> items, std::span<SortItem> scratch) { SortFrom(items, scratch, 0); }

 private:
  // Items that are equal up to a step.
  struct Group {
    std::size_t First = 0, Count = 0;
  };

  // Step: which half of which window, from the upper half of the first on; what stands before is equal.
  void SortFrom(std::span<SortItem> items, std::span<SortItem> scratch, std::size_t step);
  // By that half, or the whole window of few items; the step that is next.
  std::size_t SortHalf(std::span<SortItem> items, std::span<SortItem> scratch, std::size_t step);
  void SortGroup(std::span<SortItem> items, std::span<SortItem> scratch, Group group, std::size_t step);
  void ByDigits(std::span<SortItem> items, std::span<SortItem> scratch, std::uint32_t SortItem::*half);
  void LoadWindow(std::span<SortItem> items, std::size_t window) const;

  const SortLayout& layout_;
  const char* entries_;
  // How often each value of each byte of a half stands in the items.
  std::array<std::array<std::uint32_t, 256>, 4> counts_{};
};

}  // namespace sort
