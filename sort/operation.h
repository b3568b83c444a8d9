// The sort operation: writes a sorted extract of a file of fixed-length records, as a control statement asks.
// README.md in this folder explains how it works.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "runtime/disk.h"
#include "sort/table.h"

namespace sort {

// The values are shown to the user.
enum class Status : std::int32_t {
  Done = 0,
  StatementUnreadable = 1,
  InputUnreadable = 2,
  WeightsUnreadable = 3,  // missing, or not 256 bytes
  OutputUnwritable = 4,
};

struct Result {
  sort::Status Status = Status::Done;
  std::int32_t Records = 0;  // written; 0 unless done
};

// The number of a record has seven digits.
inline constexpr std::int64_t MaxRecords = 9'999'999;

struct Limits {
  // Memory limit; larger inputs use runs.
  std::size_t MemoryBytes = 192 * 1024 * 1024;
  // Record count from which two threads work; both call the disk.
  std::int64_t TwoWorkersFrom = 16'384;
  // Read or written at once; always at least one record.
  std::size_t BlockBytes = std::size_t{512} * 1024;
};

// Runs sorts one after the other. If only Include differs from the sort before, unchanged records keep their order; the
// whole input is read all the same.
class Sorter {
 public:
  explicit Sorter(runtime::Disk& disk, const Limits& limits = {}) : disk_(disk), limits_(limits) {}

  // Replaces the output by the extract; a stop at any moment leaves the old file or the new one. Stable; a partial last
  // record is ignored; an input of more than MaxRecords is unreadable. Unless done, the output is unchanged. The new
  // file is durable once the folders are synced, which is left to the caller.
  // Next: the statement of the next sort of the same input, if it is known and nothing is written to the input in
  // between; while this output is synced, the input is read for it.
  Result Sort(std::string_view input, std::string_view output, std::string_view statement, std::string_view next = "");

  // Gets the fraction of the input that a sort has read; called from the thread of Sort.
  sort::Progress Progress;

 private:
  runtime::Disk& disk_;
  Limits limits_;
  Workers workers_;
  std::optional<Table> last_;
};

}  // namespace sort
