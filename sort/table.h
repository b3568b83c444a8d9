// As many records of the input as memory holds at a time: read, sorted, and handed on.
//
// Where it holds all of them, it keeps also those that are not included: what the next sort includes may be others, and
// as long as they have not changed their order stands.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "runtime/whole_io.h"
#include "sort/include.h"
#include "sort/items.h"
#include "sort/layout.h"
#include "sort/workers.h"

namespace sort {

class SortTable {
 public:
  // Bytes that each record takes.
  static std::size_t BytesPerRecord(const SortLayout& layout) {
    return layout.EntryLength() + 2 * sizeof(SortItem) + 1;
  }

  // Records: of the input; room: for so many of them. Workers: to halve the work, or nullptr.
  SortTable(const SortLayout& layout, std::int64_t records, std::int64_t room, SortWorkers* workers);

  const SortLayout& Layout() const { return layout_; }
  // Whether there is room for all records, and whether all have been loaded.
  bool HoldsAll() const { return holds_all_; }
  bool AtEnd() const { return parts_[0].Next == parts_[0].End && parts_[1].Next == parts_[1].End; }
  // Puts the next records of the input into the place of the present ones; without room for all, the included ones
  // only.
  void Load(const runtime::OpenFile& input, const SortInclude& include);
  // Puts the present records in their order; once after each load.
  void Sort();

  // Whether this is what a sort with that layout would load from an input of so many records.
  bool Suits(const SortLayout& layout, std::int64_t records) const;
  // Reads all records again; false where one would not make the entry that it made. Other ones may be included.
  bool Reload(const runtime::OpenFile& input, const SortInclude& include);

  // Write the present records that are included, in their order, and tell how many: as the output's first records, or
  // as entries from that one on.
  std::int64_t WriteOutput(const runtime::OpenFile& output) { return Write(output, layout_.OutputLength(), 0); }
  std::int64_t WriteEntries(const runtime::OpenFile& file, std::int64_t first) {
    return Write(file, layout_.EntryLength(), first);
  }

 private:
  // Of one worker: the records from Next to before End are still to be loaded; its entries stand from Begin on.
  struct Part {
    std::int64_t Next, End;
    std::size_t Begin, Room, Loaded;
  };

  std::span<char> Block(int worker);
  std::span<SortItem> Loaded(int worker);
  void LoadPart(const runtime::OpenFile& input, const SortInclude& include, int worker);
  bool ReloadPart(const runtime::OpenFile& input, const SortInclude& include, int worker);
  std::uint64_t MiddleWindow();
  std::size_t CountBelow(std::uint64_t window);
  void SortHalves();
  void PickIncluded();
  std::int64_t Write(const runtime::OpenFile& file, std::size_t length, std::int64_t first);

  SortLayout layout_;
  std::int64_t records_;
  bool holds_all_;
  SortWorkers* workers_;
  std::array<Part, 2> parts_;
  std::size_t block_length_;
  std::unique_ptr<char[]> blocks_, entries_;
  std::unique_ptr<unsigned char[]> included_;  // 1 or 0 for each entry
  std::unique_ptr<SortItem[]> items_, scratch_;
  // What was sorted, where as many items can be put meanwhile, and what of them is included.
  std::array<std::span<SortItem>, 2> sorted_{}, free_{}, picked_{};
};

}  // namespace sort
