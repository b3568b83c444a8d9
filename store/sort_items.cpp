// Many items are distributed byte by byte from the last byte of the window to the first, few are compared.
#include "store/sort_items.h"

#include <algorithm>
#include <utility>

namespace store {
namespace {

constexpr std::size_t FewItems = 192;

unsigned Digit(std::uint64_t window, std::size_t byte) { return static_cast<unsigned>(window >> (8 * byte)) & 255; }

}  // namespace

void ItemSorter::SortFrom(std::span<SortItem> items, std::span<SortItem> scratch, std::size_t window) {
  ByWindow(items, scratch);
  if (++window >= layout_.Windows()) return;
  for (std::size_t first = 0; first < items.size();) {
    std::size_t end = first + 1;
    while (end < items.size() && items[end].Window == items[first].Window) ++end;
    if (end - first > 1) {
      LoadWindow(items.subspan(first, end - first), window);
      SortFrom(items.subspan(first, end - first), scratch.subspan(first, end - first), window);
    }
    first = end;
  }
}

void ItemSorter::LoadWindow(std::span<SortItem> items, std::size_t window) const {
  SortItem* item = items.data();
  ForEachEntry(items, entries_, layout_.EntryLength(),
               [&](const char* entry) { (item++)->Window = layout_.Window(entry, window); });
}

void ItemSorter::ByWindow(std::span<SortItem> items, std::span<SortItem> scratch) {
  if (items.size() > FewItems) {
    ByDigits(items, scratch);
    return;
  }
  std::sort(items.begin(), items.end(), [](const SortItem& left, const SortItem& right) {
    return left.Window != right.Window ? left.Window < right.Window : left.Entry < right.Entry;
  });
}

void ItemSorter::ByDigits(std::span<SortItem> items, std::span<SortItem> scratch) {
  for (auto& counts : counts_) counts.fill(0);
  for (const SortItem& item : items) {
    for (std::size_t byte = 0; byte < counts_.size(); ++byte) ++counts_[byte][Digit(item.Window, byte)];
  }
  std::span<SortItem> from = items;
  std::span<SortItem> to = scratch;
  for (std::size_t byte = 0; byte < counts_.size(); ++byte) {
    auto& counts = counts_[byte];
    if (counts[Digit(items[0].Window, byte)] == items.size()) continue;
    std::uint32_t place = 0;
    for (std::uint32_t& count : counts) place += std::exchange(count, place);
    for (const SortItem& item : from) to[counts[Digit(item.Window, byte)]++] = item;
    std::swap(from, to);
  }
  if (from.data() != items.data()) std::copy(from.begin(), from.end(), items.begin());
}

}  // namespace store
