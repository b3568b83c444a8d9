// Sorts entries in memory by the first window, ties by the next ones.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "sort/layout.h"

namespace sort {

// An entry by its index in the table of entries, with one window of its key.
struct Item {
  std::uint32_t Upper, Lower;  // the halves of the window
  std::uint32_t Entry;

  std::uint64_t Window() const { return std::uint64_t{Upper} << 32 | Lower; }
  void SetWindow(std::uint64_t window) {
    Upper = static_cast<std::uint32_t>(window >> 32);
    Lower = static_cast<std::uint32_t>(window);
  }
};

// Calls use(entry) for the entry of each item, in order; entries as for ItemSorter. They are scattered in memory, so
// both ends of each are prefetched ahead.
template <typename Use>
void ForEachEntry(std::span<const Item> items, const char* entries, std::size_t entry_length, Use&& use) {
  constexpr std::size_t Ahead = 40;
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
  // Entries: the table of entries, contiguous.
  ItemSorter(const Layout& layout, const char* entries) : layout_(layout), entries_(entries) {}

  // Items must contain their first window and be in entry order; ties keep it. The windows are overwritten. Scratch
  // must be as long as items.
  void Sort(std::span<Item> items, std::span<Item> scratch) { SortFrom(items, scratch, 0); }

 private:
  // Items that are equal in all steps so far.
  struct Group {
    std::size_t First = 0, Count = 0;
  };

  // Step: half-window to sort by, from 0, the upper half of the first window; earlier ones are equal.
  void SortFrom(std::span<Item> items, std::span<Item> scratch, std::size_t step);
  // Sorts by that half, few items by the whole window; returns the next step.
  std::size_t SortHalf(std::span<Item> items, std::span<Item> scratch, std::size_t step);
  void SortGroup(std::span<Item> items, std::span<Item> scratch, Group group, std::size_t step);
  void ByDigits(std::span<Item> items, std::span<Item> scratch, std::uint32_t Item::*half);
  void LoadWindow(std::span<Item> items, std::size_t window) const;

  const Layout& layout_;
  const char* entries_;
  // Frequency of each value in each byte of a half.
  std::array<std::array<std::uint32_t, 256>, 4> counts_{};
};

}  // namespace sort
