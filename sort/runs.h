// Sorted runs of entries in one file, and their merging.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "runtime/whole_io.h"
#include "sort/layout.h"
#include "sort/workers.h"

namespace sort {

// Entries of the file, from 0; End: behind the last.
struct EntryRange {
  std::int64_t First = 0;
  std::int64_t End = 0;
};

class SortRuns {
 public:
  SortRuns(const SortLayout& layout, runtime::OpenFile file) : layout_(layout), file_(std::move(file)) {}

  const runtime::OpenFile& File() const { return file_; }
  // Of all runs so far.
  std::int64_t Count() const { return runs_.empty() ? 0 : runs_.back().End; }
  // The next so many entries of the file, which are written already, are a run.
  void Add(std::int64_t count);

  // Writes all entries in their order as output records; equal ones by their numbers. Memory: in bytes, for the
  // blocks of all runs; workers: nullptr for one.
  void Merge(const runtime::OpenFile& output, std::size_t memory, SortWorkers* workers) const;

 private:
  using Ranges = std::vector<EntryRange>;
  void MergeRanges(const Ranges& ranges, const runtime::OpenFile& output, std::int64_t place, std::size_t block) const;
  std::array<Ranges, 2> Halves() const;
  std::string EntryAt(std::int64_t entry) const;

  const SortLayout& layout_;
  runtime::OpenFile file_;
  Ranges runs_;
};

}  // namespace sort
