// Sorted runs of entries in one file, and their merge.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "runtime/whole_io.h"
#include "sort/layout.h"
#include "sort/workers.h"

namespace sort {

// Entries of the file, from 0; End is exclusive.
struct EntryRange {
  std::int64_t First = 0;
  std::int64_t End = 0;
};

class Runs {
 public:
  Runs(const Layout& layout, runtime::OpenFile file) : layout_(layout), file_(std::move(file)) {}

  const runtime::OpenFile& File() const { return file_; }
  // Entries in all runs so far.
  std::int64_t Count() const { return runs_.empty() ? 0 : runs_.back().End; }
  // Registers the next count entries, already written, as a run.
  void Add(std::int64_t count);

  // Writes the output records of all entries in order; equal ones by their numbers. Memory: bytes for the blocks of all
  // runs. Workers: nullptr for one thread.
  void Merge(const runtime::OpenFile& output, std::size_t memory, std::size_t block_bytes, Workers* workers) const;

 private:
  using Ranges = std::vector<EntryRange>;
  void MergeRanges(const Ranges& ranges, const runtime::OpenFile& output, std::int64_t place, std::size_t block) const;
  std::array<Ranges, 2> Halves() const;
  std::string EntryAt(std::int64_t entry) const;

  const Layout& layout_;
  runtime::OpenFile file_;
  Ranges runs_;
};

}  // namespace sort
