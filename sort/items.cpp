// Large groups: radix sort on the upper half of the window, then on the lower; small ones: std::sort.
#include "sort/items.h"

#include <algorithm>
#include <utility>

namespace sort {
namespace {

constexpr std::size_t FewItems = 192;

std::uint32_t Digit(std::uint32_t half, std::size_t byte) { return half >> (8 * byte) & 255; }

std::uint32_t Item::*HalfOf(std::size_t step) { return step % 2 == 0 ? &Item::Upper : &Item::Lower; }

}  // namespace

void ItemSorter::SortFrom(std::span<Item> items, std::span<Item> scratch, std::size_t step) {
  while (items.size() > 1) {
    step = SortHalf(items, scratch, step);
    if (step >= 2 * layout_.Windows()) return;
    const bool only_upper = step % 2 != 0;
    // Recurse into the smaller groups and loop on the largest: the stack stays small for a key of any length.
    Group largest;
    for (Group group; group.First < items.size(); group.First += group.Count) {
      const Item& first = items[group.First];
      group.Count = 1;
      for (const Item& item : items.subspan(group.First + 1)) {
        if (item.Upper != first.Upper || (!only_upper && item.Lower != first.Lower)) break;
        ++group.Count;
      }
      const Group smaller = group.Count > largest.Count ? std::exchange(largest, group) : group;
      if (smaller.Count > 1) SortGroup(items, scratch, smaller, step);
    }
    items = items.subspan(largest.First, largest.Count);
    scratch = scratch.subspan(largest.First, largest.Count);
    if (step % 2 == 0) LoadWindow(items, step / 2);
  }
}

std::size_t ItemSorter::SortHalf(std::span<Item> items, std::span<Item> scratch, std::size_t step) {
  if (items.size() > FewItems) {
    ByDigits(items, scratch, HalfOf(step));
    return step + 1;
  }
  std::sort(items.begin(), items.end(), [](const Item& left, const Item& right) {
    return left.Window() != right.Window() ? left.Window() < right.Window() : left.Entry < right.Entry;
  });
  return (step | 1) + 1;
}

void ItemSorter::SortGroup(std::span<Item> items, std::span<Item> scratch, Group group, std::size_t step) {
  std::span<Item> equal = items.subspan(group.First, group.Count);
  if (step % 2 == 0) LoadWindow(equal, step / 2);
  SortFrom(equal, scratch.subspan(group.First, group.Count), step);
}

void ItemSorter::LoadWindow(std::span<Item> items, std::size_t window) const {
  Item* item = items.data();
  ForEachEntry(items, entries_, layout_.EntryLength(),
               [&](const char* entry) { (item++)->SetWindow(layout_.Window(entry, window)); });
}

void ItemSorter::ByDigits(std::span<Item> items, std::span<Item> scratch, std::uint32_t Item::*half) {
  for (auto& counts : counts_) counts.fill(0);
  for (const Item& item : items) {
    for (std::size_t byte = 0; byte < counts_.size(); ++byte) ++counts_[byte][Digit(item.*half, byte)];
  }
  std::span<Item> from = items;
  std::span<Item> to = scratch;
  for (std::size_t byte = 0; byte < counts_.size(); ++byte) {
    auto& counts = counts_[byte];
    if (counts[Digit(items[0].*half, byte)] == items.size()) continue;
    std::uint32_t place = 0;
    for (std::uint32_t& count : counts) place += std::exchange(count, place);
    for (const Item& item : from) to[counts[Digit(item.*half, byte)]++] = item;
    std::swap(from, to);
  }
  if (from.data() != items.data()) std::copy(from.begin(), from.end(), items.begin());
}

}  // namespace sort
