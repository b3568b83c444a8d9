// The records of the input that fit into memory: loaded, sorted, written.
//
// If all fit, excluded records are kept too: a later sort may include them, and unless one has changed their order is
// still right.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "runtime/whole_io.h"
#include "sort/blocks.h"
#include "sort/include.h"
#include "sort/items.h"
#include "sort/layout.h"
#include "sort/workers.h"

namespace sort {

class Table {
 public:
  // Memory per record.
  static std::size_t BytesPerRecord(const Layout& layout) { return layout.EntryLength() + 2 * sizeof(Item) + 1; }

  // Records: count in the input; room: count that fits. Block_bytes: read or written at once. Workers: to halve the
  // work, or nullptr.
  Table(const Layout& layout, std::int64_t records, std::int64_t room, std::size_t block_bytes, Workers* workers);

  const sort::Layout& EntryLayout() const { return layout_; }
  // In the input.
  std::int64_t Records() const { return records_; }
  // Whether there is room for all records, and whether all have been loaded.
  bool HoldsAll() const { return holds_all_; }
  bool AtEnd() const { return parts_[0].Next == parts_[0].End && parts_[1].Next == parts_[1].End; }
  // Replaces the present records by the next ones of the input; without room for all, only included ones are loaded.
  void Load(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress);
  // Call once after each load.
  void Sort();

  // Whether a sort with that layout and record count could take over this table.
  bool Suits(const Layout& layout, std::int64_t records) const;
  // Rereads all records and applies the new test; false if one has changed. Resume: after ReadAhead with that test.
  bool Reload(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress, bool resume);
  // Begins to reread for the test of the next sort; returns at the end of the input, or soon after the stop.
  void ReadAhead(const runtime::OpenFile& input, const IncludeFilter& next, const std::atomic<bool>& stop);

  // Write the included records in order and return their count: as the output's first records, or as entries from
  // entry `first` on.
  std::int64_t WriteOutput(const runtime::OpenFile& output) { return Write(output, layout_.OutputLength(), 0); }
  std::int64_t WriteEntries(const runtime::OpenFile& file, std::int64_t first) {
    return Write(file, layout_.EntryLength(), first);
  }

 private:
  // Of one worker: records Next to End (exclusive) are still to be loaded; its entries are at Begin and after.
  struct Part {
    std::int64_t Next, End;
    std::size_t Begin, Room, Loaded;
  };

  std::span<char> Block(int worker);
  std::span<Item> Loaded(int worker);
  void LoadPart(const runtime::OpenFile& input, const IncludeFilter& include, const Progress* progress, int worker);
  void Reread(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress,
              const std::atomic<bool>& stop);
  bool RereadBlock(const runtime::OpenFile& input, const IncludeFilter& include, std::int64_t first, int worker);
  std::uint64_t MiddleWindow();
  std::size_t CountBelow(std::uint64_t window);
  void SortHalves();
  void PickIncluded();
  std::int64_t Write(const runtime::OpenFile& file, std::size_t length, std::int64_t first);

  Layout layout_;
  std::int64_t records_;
  bool holds_all_;
  Workers* workers_;
  std::array<Part, 2> parts_;
  std::size_t block_length_;
  std::unique_ptr<char[]> blocks_, entries_;
  std::unique_ptr<unsigned char[]> included_;  // 1 or 0 for each entry
  std::unique_ptr<Item[]> items_, scratch_;
  std::int64_t reread_ = 0;  // records
  bool unchanged_ = true;    // none of them has changed
  // By half: the sorted items, a buffer of the same length, and the included items.
  std::array<std::span<Item>, 2> sorted_{}, free_{}, picked_{};
};

}  // namespace sort
