// Two workers each load half of the input; then each sorts half of the items: those below a middle window, and the
// rest. The outputs of the two halves follow each other.
#include "sort/table.h"

#include <algorithm>
#include <vector>

#include "runtime/large_array.h"
#include "sort/blocks.h"

namespace sort {
namespace {

// In bytes; for fewer the call costs more than it saves.
constexpr std::int64_t WorthReserving = 1024 * 1024;

// Worker 0 is the caller's thread; the other half goes about as fast.
const Progress* ProgressOf(int worker, const Progress& progress) {
  return worker == 0 && progress ? &progress : nullptr;
}

}  // namespace

Table::Table(const Layout& layout, std::int64_t records, std::int64_t room, std::size_t block_bytes, Workers* workers)
    : layout_(layout),
      records_(records),
      holds_all_(room >= records),
      workers_(workers),
      block_length_(std::max({block_bytes, layout.RecordLength(), layout.EntryLength()})),
      blocks_(std::make_unique_for_overwrite<char[]>((workers ? 2 : 1) * block_length_)),
      entries_(runtime::MakeLargeArray<char>(static_cast<std::size_t>(room) * layout.EntryLength())),
      included_(std::make_unique_for_overwrite<unsigned char[]>(static_cast<std::size_t>(room))),
      items_(runtime::MakeLargeArray<Item>(static_cast<std::size_t>(room))),
      scratch_(runtime::MakeLargeArray<Item>(static_cast<std::size_t>(room) + 2)) {
  const std::int64_t half = workers ? records / 2 : records;
  const auto half_room = static_cast<std::size_t>(workers ? room / 2 : room);
  parts_[0] = {0, half, 0, half_room, 0};
  parts_[1] = {half, records, half_room, static_cast<std::size_t>(room) - half_room, 0};
}

std::span<char> Table::Block(int worker) {
  return {blocks_.get() + (workers_ ? static_cast<std::size_t>(worker) : 0) * block_length_, block_length_};
}

std::span<Item> Table::Loaded(int worker) {
  const Part& part = parts_.at(worker);
  return {items_.get() + part.Begin, part.Loaded};
}

void Table::Load(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress) {
  RunHalves(workers_, [&](int worker) { LoadPart(input, include, ProgressOf(worker, progress), worker); });
}

void Table::LoadPart(const runtime::OpenFile& input, const IncludeFilter& include, const Progress* progress,
                     int worker) {
  Part& part = parts_.at(worker);
  BlockReader reader(input, layout_.RecordLength(), part.Next, part.End - part.Next, Block(worker), progress);
  const std::size_t length = layout_.EntryLength();
  std::size_t place = part.Begin;
  const std::size_t end = part.Begin + part.Room;
  char* entry = entries_.get() + place * length;
  while (place < end) {
    const char* record = reader.Next();
    if (!record) break;
    const auto number = static_cast<std::uint32_t>(++part.Next);
    const bool kept = include.Keeps(record);
    if (!kept && !holds_all_) continue;
    layout_.MakeEntry(record, number, entry);
    included_[place] = kept ? 1 : 0;
    items_[place].SetWindow(layout_.Window(entry, 0));
    items_[place].Entry = static_cast<std::uint32_t>(place);
    entry += length;
    ++place;
  }
  part.Loaded = place - part.Begin;
}

bool Table::Suits(const Layout& layout, std::int64_t records) const {
  return holds_all_ && records_ == records && layout_ == layout;
}

bool Table::Reload(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress,
                   bool resume) {
  if (!resume) {
    reread_ = 0;
    unchanged_ = true;
  }
  Reread(input, include, progress, false);
  if (unchanged_ && progress) progress(1);
  return unchanged_;
}

// A failure is left to the next sort, which reads again.
void Table::ReadAhead(const runtime::OpenFile& input, const IncludeFilter& next, const std::atomic<bool>& stop) {
  reread_ = 0;
  unchanged_ = true;
  try {
    Reread(input, next, nullptr, stop);
  } catch (const runtime::Failure&) {
    unchanged_ = false;
  }
}

// Each worker takes one block after the other.
void Table::Reread(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress,
                   const std::atomic<bool>& stop) {
  const auto in_block = static_cast<std::int64_t>(block_length_ / layout_.RecordLength());
  std::atomic<std::int64_t> next = reread_;
  std::atomic<bool> unchanged = unchanged_;
  RunHalves(workers_, [&](int worker) {
    const Progress* shown = ProgressOf(worker, progress);
    while (unchanged && !stop) {
      const std::int64_t first = next.fetch_add(in_block);
      if (first >= records_) return;
      if (!RereadBlock(input, include, first, worker)) unchanged = false;
      if (shown) (*shown)(static_cast<double>(first) / static_cast<double>(records_));
    }
  });
  reread_ = next;
  unchanged_ = unchanged;
}

bool Table::RereadBlock(const runtime::OpenFile& input, const IncludeFilter& include, std::int64_t first, int worker) {
  const auto in_block = static_cast<std::int64_t>(block_length_ / layout_.RecordLength());
  BlockReader reader(input, layout_.RecordLength(), first, std::min(in_block, records_ - first), Block(worker));
  auto place = static_cast<std::size_t>(first);
  const char* entry = entries_.get() + place * layout_.EntryLength();
  for (; const char* record = reader.Next(); ++place) {
    if (!layout_.IsEntryOf(record, entry)) return false;
    included_[place] = include.Keeps(record) ? 1 : 0;
    entry += layout_.EntryLength();
  }
  return true;
}

void Table::Sort() {
  sorted_ = {};
  free_ = {};
  const std::size_t count = parts_[0].Loaded + parts_[1].Loaded;
  if (count == 0) return;
  if (workers_) {
    SortHalves();
    return;
  }
  sorted_[0] = Loaded(0);
  free_[0] = {scratch_.get(), count};
  ItemSorter(layout_, entries_.get()).Sort(sorted_[0], free_[0]);
}

// Estimated from a sample. Any value is correct; a good one balances the halves.
std::uint64_t Table::MiddleWindow() {
  constexpr std::size_t SampleSize = 255;
  std::vector<std::uint64_t> sample;
  for (int worker : {0, 1}) {
    std::span<const Item> items = Loaded(worker);
    std::size_t step = items.size() / SampleSize + 1;
    for (std::size_t at = 0; at < items.size(); at += step) sample.push_back(items[at].Window());
  }
  auto middle = sample.begin() + static_cast<std::ptrdiff_t>(sample.size() / 2);
  std::nth_element(sample.begin(), middle, sample.end());
  return *middle;
}

std::size_t Table::CountBelow(std::uint64_t window) {
  std::array<std::size_t, 2> counts{};
  RunHalves(workers_, [&](int worker) {
    std::size_t count = 0;
    for (const Item& item : Loaded(worker)) count += item.Window() < window ? 1 : 0;
    counts.at(worker) = count;
  });
  return counts[0] + counts[1];
}

void Table::SortHalves() {
  const std::uint64_t middle = MiddleWindow();
  const std::size_t lower = CountBelow(middle);
  const std::size_t upper = parts_[0].Loaded + parts_[1].Loaded - lower;
  // Branch-free partition: it may write one item past each half, hence the gap.
  sorted_ = {std::span(scratch_.get(), lower), std::span(scratch_.get() + lower + 1, upper)};
  free_ = {std::span(items_.get(), lower), std::span(items_.get() + lower, upper)};
  RunHalves(workers_, [&](int half) {
    Item* target = sorted_.at(half).data();
    for (int worker : {0, 1}) {
      for (const Item& item : Loaded(worker)) {
        *target = item;
        target += (item.Window() < middle) == (half == 0) ? 1 : 0;
      }
    }
  });
  RunHalves(workers_, [&](int half) {
    if (!sorted_.at(half).empty()) ItemSorter(layout_, entries_.get()).Sort(sorted_.at(half), free_.at(half));
  });
}

void Table::PickIncluded() {
  RunHalves(workers_, [&](int half) {
    Item* target = free_.at(half).data();
    for (const Item& item : sorted_.at(half)) {
      *target = item;
      target += included_[item.Entry];
    }
    picked_.at(half) = {free_.at(half).data(), target};
  });
}

std::int64_t Table::Write(const runtime::OpenFile& file, std::size_t length, std::int64_t first) {
  PickIncluded();
  const auto lower = static_cast<std::int64_t>(picked_[0].size());
  const std::int64_t count = lower + static_cast<std::int64_t>(picked_[1].size());
  const std::int64_t bytes = count * static_cast<std::int64_t>(length);
  if (bytes >= WorthReserving) file.Reserve(first * static_cast<std::int64_t>(length) + bytes);
  RunHalves(workers_, [&](int half) {
    BlockWriter writer(file, length, half == 0 ? first : first + lower, Block(half));
    ForEachEntry(picked_.at(half), entries_.get(), layout_.EntryLength(),
                 [&](const char* entry) { std::copy_n(entry, length, writer.Next()); });
    writer.Flush();
  });
  return count;
}

}  // namespace sort
