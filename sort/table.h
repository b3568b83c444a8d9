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
#include <string>

#include "runtime/whole_io.h"
#include "sort/include.h"
#include "sort/items.h"
#include "sort/layout.h"
#include "sort/workers.h"

namespace sort {

// Gets the fraction of the input that has been read, from 0 to 1.
using Progress = std::function<void(double done)>;

// One reading of the input: which file, as of which time, and for which statement.
struct Reading {
  runtime::FileIdentity Input;
  runtime::FileTime Modified;
  std::string Statement;
  bool operator==(const Reading&) const = default;
};

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
  bool HoldsAll() const { return room_ >= records_; }
  bool AtEnd() const { return parts_[0].Next == parts_[0].End && parts_[1].Next == parts_[1].End; }
  // Replaces the present records by the next ones of the input; without room for all, only included ones are loaded.
  void Load(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress);
  // Call once after each load.
  void Sort();

  // Whether a sort with that layout and record count could take over this table.
  bool Suits(const Layout& layout, std::int64_t records) const;
  // Rereads the records that ReadAhead has not reread, and applies the new test; false if one has changed.
  bool Reload(const runtime::OpenFile& input, const IncludeFilter& include, const Reading& reading,
              const Progress& progress);
  // Begins a reload; returns at the end of the input, or soon after the stop.
  void ReadAhead(const runtime::OpenFile& input, const IncludeFilter& include, const Reading& reading,
                 const std::atomic<bool>& stop);

  // Write the included records in order and return their count: as the output's first records, or as entries from
  // entry `first` on.
  std::int64_t WriteOutput(const runtime::OpenFile& output) { return Write(output, layout_.OutputLength(), 0); }
  std::int64_t WriteEntries(const runtime::OpenFile& file, std::int64_t first) {
    return Write(file, layout_.EntryLength(), first);
  }

 private:
  // Of one worker if not all records fit: Next to End (exclusive) are still to be loaded, its entries are at Begin and
  // after.
  struct Part {
    std::int64_t Next = 0, End = 0;
    std::size_t Begin = 0, Room = 0;
  };

  std::span<char> Block(int worker);
  template <typename Use>
  bool ForEachRecord(const runtime::OpenFile& input, std::int64_t& from, const Progress& progress,
                     const std::atomic<bool>& stop, Use&& use);
  void Tell(const Progress& progress, std::int64_t read) const;
  void MakeEntry(const char* record, std::int64_t number, std::size_t place);
  void LoadAll(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress);
  void LoadIncluded(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress);
  std::size_t LoadPart(const runtime::OpenFile& input, const IncludeFilter& include, int worker);
  void Reread(const runtime::OpenFile& input, const IncludeFilter& include, const Progress& progress,
              const std::atomic<bool>& stop);
  void PickIncluded();
  std::int64_t Write(const runtime::OpenFile& file, std::size_t length, std::int64_t first);

  Layout layout_;
  std::int64_t records_, room_;
  Workers* workers_;
  std::size_t block_length_;
  std::unique_ptr<char[]> blocks_, entries_;
  std::unique_ptr<unsigned char[]> included_;  // 1 or 0 for each entry
  std::unique_ptr<Item[]> items_, scratch_;
  std::array<Part, 2> parts_;
  std::size_t loaded_ = 0;  // records
  // The reading that ReadAhead began, how many records it has compared, and whether all are as they were.
  Reading ahead_;
  std::int64_t reread_ = 0;
  bool unchanged_ = true;
  // By half: the sorted items, a buffer of the same length, and the included items.
  std::array<std::span<Item>, 2> sorted_{}, free_{}, picked_{};
};

}  // namespace sort
