// Two workers take the blocks of the input in turn, or if not all records fit, each reads a half. They sort the items
// of one first byte after the other. Then each writes half of the output.
#include "sort/table.h"

#include <algorithm>
#include <utility>

#include "runtime/large_array.h"
#include "sort/blocks.h"
#include "sort/divide.h"

namespace sort {
namespace {

// In bytes; for fewer the call costs more than it saves.
constexpr std::int64_t WorthReserving = 1024 * 1024;

}  // namespace

Table::Table(const Layout& layout, std::int64_t records, std::int64_t room, std::size_t block_bytes, Workers* workers)
    : layout_(layout),
      records_(records),
      room_(room),
      workers_(workers),
      block_length_(std::max({block_bytes, layout.RecordLength(), layout.EntryLength()})),
      blocks_(std::make_unique_for_overwrite<char[]>((workers ? 2 : 1) * block_length_)),
      entries_(runtime::MakeLargeArray<char>(static_cast<std::size_t>(room) * layout.EntryLength())),
      included_(std::make_unique_for_overwrite<unsigned char[]>(static_cast<std::size_t>(room))),
      items_(runtime::MakeLargeArray<Item>(static_cast<std::size_t>(room))),
      scratch_(runtime::MakeLargeArray<Item>(static_cast<std::size_t>(room))) {
  const std::int64_t half = workers ? records / 2 : records;
  const auto half_room = static_cast<std::size_t>(workers ? room / 2 : room);
  parts_ = {Part{0, half, 0, half_room}, Part{half, records, half_room, static_cast<std::size_t>(room) - half_room}};
}

std::span<char> Table::Block(int worker) {
  return {blocks_.get() + (workers_ ? static_cast<std::size_t>(worker) : 0) * block_length_, block_length_};
}

// Calls use(record, number) for the records from `from` on, until it returns false or is told to stop; each worker
// takes one block after the other. All records before the new `from` have been used.
template <typename Use>
bool Table::ForEachRecord(const runtime::OpenFile& input, std::int64_t& from, const Progress& progress,
                          const std::atomic<bool>& stop, Use&& use) {
  const auto in_block = static_cast<std::int64_t>(block_length_ / layout_.RecordLength());
  std::atomic<std::int64_t> next = from;
  std::atomic<bool> refused = false;
  RunHalves(workers_, [&](int worker) {
    while (!refused && !stop) {
      const std::int64_t first = next.fetch_add(in_block);
      if (first >= records_) return;
      const std::int64_t end = std::min(first + in_block, records_);
      BlockReader reader(input, layout_.RecordLength(), first, end - first, Block(worker));
      for (std::int64_t number = first; const char* record = reader.Next(); ++number) {
        if (use(record, number)) continue;
        refused = true;
        return;
      }
      // Worker 0 is the caller's thread.
      if (worker == 0) Tell(progress, end);
    }
  });
  from = std::min<std::int64_t>(next, records_);
  if (!refused) Tell(progress, from);
  return !refused;
}

void Table::Tell(const Progress& progress, std::int64_t read) const {
  if (progress && read > 0) progress(static_cast<double>(read) / static_cast<double>(records_));
}

void Table::MakeEntry(const char* record, std::int64_t number, std::size_t place) {
  char* entry = entries_.get() + place * layout_.EntryLength();
  layout_.MakeEntry(record, static_cast<std::uint32_t>(number + 1), entry);
  items_[place].SetWindow(layout_.Window(entry, 0));
  items_[place].Entry = static_cast<std::uint32_t>(place);
}

void Table::Load(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress) {
  if (HoldsAll()) {
    LoadAll(input, include, progress);
  } else {
    LoadIncluded(input, include, progress);
  }
}

void Table::LoadAll(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress) {
  std::int64_t loaded = 0;
  ForEachRecord(input, loaded, progress, false, [&](const char* record, std::int64_t number) {
    const auto place = static_cast<std::size_t>(number);
    included_[place] = include.Keeps(record) ? 1 : 0;
    MakeEntry(record, number, place);
    return true;
  });
  loaded_ = static_cast<std::size_t>(loaded);
  for (Part& part : parts_) part.Next = part.End;
}

void Table::LoadIncluded(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress) {
  std::array<std::size_t, 2> counts{};
  RunHalves(workers_, [&](int worker) { counts.at(worker) = LoadPart(input, include, worker); });
  const Item* upper = items_.get() + parts_[1].Begin;
  std::copy(upper, upper + counts[1], items_.get() + counts[0]);
  loaded_ = counts[0] + counts[1];
  Tell(progress, records_ - (parts_[0].End - parts_[0].Next) - (parts_[1].End - parts_[1].Next));
}

// Returns how many of the part's included records were loaded.
std::size_t Table::LoadPart(const runtime::OpenFile& input, const IncludeFilter& include, int worker) {
  Part& part = parts_.at(worker);
  BlockReader reader(input, layout_.RecordLength(), part.Next, part.End - part.Next, Block(worker));
  std::size_t place = part.Begin;
  while (place < part.Begin + part.Room) {
    const char* record = reader.Next();
    if (!record) break;
    const std::int64_t number = part.Next++;
    if (!include.Keeps(record)) continue;
    included_[place] = 1;
    MakeEntry(record, number, place++);
  }
  return place - part.Begin;
}

bool Table::Suits(const Layout& layout, std::int64_t records) const {
  return HoldsAll() && records_ == records && layout_ == layout;
}

bool Table::Reload(const runtime::OpenFile& input, const IncludeFilter& include, const Reading& reading,
                   const Progress& progress) {
  if (std::exchange(ahead_, {}) != reading) {
    reread_ = 0;
    unchanged_ = true;
  }
  if (unchanged_) Reread(input, include, progress, false);
  return unchanged_;
}

// A failure is left to the reload, which then reads again.
void Table::ReadAhead(const runtime::OpenFile& input, const IncludeFilter& include, const Reading& reading,
                      const std::atomic<bool>& stop) {
  ahead_ = reading;
  reread_ = 0;
  unchanged_ = true;
  try {
    Reread(input, include, nullptr, stop);
  } catch (const runtime::Failure&) {
    ahead_ = {};
  }
}

void Table::Reread(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress,
                   const std::atomic<bool>& stop) {
  unchanged_ = ForEachRecord(input, reread_, progress, stop, [&](const char* record, std::int64_t number) {
    const auto place = static_cast<std::size_t>(number);
    included_[place] = include.Keeps(record) ? 1 : 0;
    return layout_.IsEntryOf(record, entries_.get() + place * layout_.EntryLength());
  });
}

void Table::Sort() {
  const std::span loaded(items_.get(), loaded_);
  const std::span sorted(scratch_.get(), loaded_);
  const Division division = Divide(loaded, sorted, workers_);
  std::atomic<std::size_t> next = 0;
  RunHalves(workers_, [&](int) {
    ItemSorter sorter(layout_, entries_.get());
    for (std::size_t byte = next++; byte + 1 < division.size(); byte = next++) {
      const std::size_t begin = division.at(byte);
      const std::size_t count = division.at(byte + 1) - begin;
      sorter.Sort(sorted.subspan(begin, count), loaded.subspan(begin, count));
    }
  });
  const std::size_t half = workers_ ? loaded_ / 2 : loaded_;
  sorted_ = {sorted.first(half), sorted.subspan(half)};
  free_ = {loaded.first(half), loaded.subspan(half)};
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
