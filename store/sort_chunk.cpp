// Each worker reads one half of the records. Then one takes all items below a middle window, the other the rest, so
// that what they sort stands side by side and need not be merged.
#include "store/sort_chunk.h"

#include <algorithm>
#include <vector>

#include "store/sort_blocks.h"
#include "store/sort_workers.h"

namespace store {

SortChunk::SortChunk(const SortLayout& layout, std::int64_t room, bool two_workers)
    : layout_(layout),
      two_workers_(two_workers),
      entries_(std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(room) * layout.EntryLength())),
      items_(std::make_unique_for_overwrite<SortItem[]>(static_cast<std::size_t>(room))),
      scratch_(std::make_unique_for_overwrite<SortItem[]>(static_cast<std::size_t>(room) + 2)) {}

void SortChunk::Load(const runtime::Opened& input, std::int64_t first, std::int64_t count) {
  std::int64_t half = two_workers_ ? count / 2 : count;
  begin_ = {0, static_cast<std::size_t>(half)};
  Twice(two_workers_, [&](int worker) {
    LoadPart(input, worker == 0 ? first : first + half, worker == 0 ? half : count - half, worker);
  });
}

void SortChunk::LoadPart(const runtime::Opened& input, std::int64_t first, std::int64_t count, int worker) {
  BlockReader reader(input, layout_.RecordLength(), first, count);
  const std::size_t length = layout_.EntryLength();
  std::size_t place = begin_.at(worker);
  SortItem* item = items_.get() + place;
  char* entry = entries_.get() + place * length;
  auto number = static_cast<std::uint32_t>(first);
  while (const char* record = reader.Next()) {
    ++number;
    if (!layout_.Keeps(record)) continue;
    layout_.MakeEntry(record, number, entry);
    *item++ = {layout_.Window(entry, 0), static_cast<std::uint32_t>(place++)};
    entry += length;
  }
  kept_.at(worker) = place - begin_.at(worker);
}

void SortChunk::Sort(const Taker& take) {
  if (two_workers_ && Kept() > 1) {
    SortHalves(take);
    return;
  }
  std::span<SortItem> items = Loaded(kept_[0] > 0 ? 0 : 1);
  ItemSorter(layout_, entries_.get()).Sort(items, {scratch_.get(), items.size()});
  take(items, entries_.get(), 0);
}

// A guess from a sample; equal windows stay together whatever it is.
std::uint64_t SortChunk::MiddleWindow() {
  constexpr std::size_t SampleSize = 255;
  std::vector<std::uint64_t> sample;
  for (int worker : {0, 1}) {
    std::span<const SortItem> items = Loaded(worker);
    std::size_t step = items.size() / SampleSize + 1;
    for (std::size_t at = 0; at < items.size(); at += step) sample.push_back(items[at].Window);
  }
  auto middle = sample.begin() + static_cast<std::ptrdiff_t>(sample.size() / 2);
  std::nth_element(sample.begin(), middle, sample.end());
  return *middle;
}

void SortChunk::SortHalves(const Taker& take) {
  const std::uint64_t middle = MiddleWindow();
  std::size_t lower_count = 0;
  for (int worker : {0, 1}) {
    for (const SortItem& item : Loaded(worker)) lower_count += item.Window < middle ? 1 : 0;
  }
  const std::size_t count = static_cast<std::size_t>(Kept());
  const std::array<std::size_t, 2> begin = {0, lower_count};
  const std::array<std::span<SortItem>, 2> halves = {
      std::span(scratch_.get(), lower_count),
      std::span(scratch_.get() + lower_count + 1, count - lower_count),
  };
  // Every item is written and only some stay, which spares a jump that cannot be foretold; the place that this takes
  // behind each half is the gap between the two.
  Twice(true, [&](int half) {
    SortItem* target = halves.at(half).data();
    for (int worker : {0, 1}) {
      for (const SortItem& item : Loaded(worker)) {
        *target = item;
        target += (item.Window < middle) == (half == 0) ? 1 : 0;
      }
    }
  });
  Twice(true, [&](int half) {
    std::span<SortItem> items = halves.at(half);
    if (items.empty()) return;
    ItemSorter(layout_, entries_.get()).Sort(items, {items_.get() + begin.at(half), items.size()});
    take(items, entries_.get(), static_cast<std::int64_t>(begin.at(half)));
  });
}

}  // namespace store
