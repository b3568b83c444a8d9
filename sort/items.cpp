// Many items are distributed byte by byte, by the upper half of the window from its last byte to its first, and then
// what is equal so far by the lower half, which lies close together by then; few are compared.
#include "sort/items.h"

#include <algorithm>
#include <utility>

namespace sort {
namespace {

constexpr std::size_t FewItems = 192;

std::uint32_t Digit(std::uint32_t half, std::size_t byte) { return half >> (8 * byte) & 255; }

std::uint32_t SortItem::*HalfOf(std::size_t step) { return step % 2 == 0 ? &SortItem::Upper : &SortItem::Lower; }

}  // namespace

void ItemSorter::SortFrom(std::span<SortItem> items, std::span<SortItem> scratch, std::size_t step) {
  while (items.size() > 1) {
    step = SortHalf(items, scratch, step);
    if (step >= 2 * layout_.Windows()) return;
    const bool only_upper = step % 2 != 0;
    // Only the smaller groups are gone into, so that the stack stays low however long the key is.
    Group largest;
    for (Group group; group.First < items.size(); group.First += group.Count) {
      const SortItem& first = items[group.First];
      group.Count = 1;
      for (const SortItem& item : items.subspan(group.First + 1)) {
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

std::size_t ItemSorter::SortHalf(std::span<SortItem> items, std::span<SortItem> scratch, std::size_t step) {
  if (items.size() > FewItems) {
    ByDigits(items, scratch, HalfOf(step));
    return step + 1;
  }
  std::sort(items.begin(), items.end(), [](const SortItem& left, const SortItem& right) {
    return left.Window() != right.Window() ? left.Window() < right.Window() : left.Entry < right.Entry;
  });
  return (step | 1) + 1;
}

void ItemSorter::SortGroup(std::span<SortItem> items, std::span<SortItem> scratch, Group group, std::size_t step) {
  std::span<SortItem> equal = items.subspan(group.First, group.Count);
  if (step % 2 == 0) LoadWindow(equal, step / 2);
  SortFrom(equal, scratch.subspan(group.First, group.Count), step);
}

void ItemSorter::LoadWindow(std::span<SortItem> items, std::size_t window) const {
  SortItem* item = items.data();
  ForEachEntry(items, entries_, layout_.EntryLength(),
               [&](const char* entry) { (item++)->SetWindow(layout_.Window(entry, window)); });
}

void ItemSorter::ByDigits(std::span<SortItem> items, std::span<SortItem> scratch, std::uint32_t SortItem::*half) {
  for (auto& counts : counts_) counts.fill(0);
  for (const SortItem& item : items) {
    for (std::size_t byte = 0; byte < counts_.size(); ++byte) ++counts_[byte][Digit(item.*half, byte)];
  }
  std::span<SortItem> from = items;
  std::span<SortItem> to = scratch;
  for (std::size_t byte = 0; byte < counts_.size(); ++byte) {
    auto& counts = counts_[byte];
    if (counts[Digit(items[0].*half, byte)] == items.size()) continue;
    std::uint32_t place = 0;
    for (std::uint32_t& count : counts) place += std::exchange(count, place);
    for (const SortItem& item : from) to[counts[Digit(item.*half, byte)]++] = item;
    std::swap(from, to);
  }
  if (from.data() != items.data()) std::copy(from.begin(), from.end(), items.begin());
}

}  // namespace sort
