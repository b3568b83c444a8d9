// Many items are distributed byte by byte, by the upper half of the window from its last byte to its first, and then
// what is equal so far by the lower half, which lies close together by then; few are compared.
#include "store/sort_items.h"

#include <algorithm>
#include <utility>

namespace store {
namespace {

constexpr std::size_t FewItems = 192;
constexpr unsigned HalfBits = 32;

unsigned Digit(std::uint64_t window, std::size_t byte, unsigned shift) {
  return static_cast<unsigned>(window >> (8 * byte + shift)) & 255;
}

}  // namespace

void ItemSorter::SortFrom(std::span<SortItem> items, std::span<SortItem> scratch, std::size_t step) {
  if (items.size() > FewItems) {
    ByDigits(items, scratch, step % 2 == 0 ? HalfBits : 0);
  } else {
    std::sort(items.begin(), items.end(), [](const SortItem& left, const SortItem& right) {
      return left.Window != right.Window ? left.Window < right.Window : left.Entry < right.Entry;
    });
    step |= 1;
  }
  const unsigned shift = step % 2 == 0 ? HalfBits : 0;
  if (++step >= 2 * layout_.Windows()) return;
  for (std::size_t first = 0; first < items.size();) {
    std::size_t end = first + 1;
    while (end < items.size() && items[end].Window >> shift == items[first].Window >> shift) ++end;
    if (end - first > 1) {
      std::span<SortItem> equal = items.subspan(first, end - first);
      if (step % 2 == 0) LoadWindow(equal, step / 2);
      SortFrom(equal, scratch.subspan(first, end - first), step);
    }
    first = end;
  }
}

void ItemSorter::LoadWindow(std::span<SortItem> items, std::size_t window) const {
  SortItem* item = items.data();
  ForEachEntry(items, entries_, layout_.EntryLength(),
               [&](const char* entry) { (item++)->Window = layout_.Window(entry, window); });
}

void ItemSorter::ByDigits(std::span<SortItem> items, std::span<SortItem> scratch, unsigned shift) {
  for (auto& counts : counts_) counts.fill(0);
  for (const SortItem& item : items) {
    for (std::size_t byte = 0; byte < counts_.size(); ++byte) ++counts_[byte][Digit(item.Window, byte, shift)];
  }
  std::span<SortItem> from = items;
  std::span<SortItem> to = scratch;
  for (std::size_t byte = 0; byte < counts_.size(); ++byte) {
    auto& counts = counts_[byte];
    if (counts[Digit(items[0].Window, byte, shift)] == items.size()) continue;
    std::uint32_t place = 0;
    for (std::uint32_t& count : counts) place += std::exchange(count, place);
    for (const SortItem& item : from) to[counts[Digit(item.Window, byte, shift)]++] = item;
    std::swap(from, to);
  }
  if (from.data() != items.data()) std::copy(from.begin(), from.end(), items.begin());
}

}  // namespace store
