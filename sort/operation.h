// The sort operation: makes a sorted extract of a file of fixed records, as a control statement says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "runtime/disk.h"
#include "sort/table.h"

namespace sort {

// The status of a sort. After any but SortDone the output and the count are as they were.
inline constexpr std::int32_t SortDone = 0;
inline constexpr std::int32_t SortStatementUnreadable = 1;
inline constexpr std::int32_t SortInputUnreadable = 2;
inline constexpr std::int32_t SortWeightsUnreadable = 3;  // missing, or not 256 bytes
inline constexpr std::int32_t SortOutputUnwritable = 4;

// The number of a record has seven digits.
inline constexpr std::int64_t MaxSortRecords = 9'999'999;

struct SortLimits {
  // For what is sorted at a time; what is more goes through runs in a file of the safety folder.
  std::size_t MemoryBytes = 192 * 1024 * 1024;
  // From so many records on two threads work, and the disk's reads and writes come from both.
  std::int64_t TwoWorkersFrom = 16'384;
};

// Sorts that come one after the other. One that differs from that before it in nothing but what it includes takes over
// the order of the records that it finds unchanged; it reads its whole input all the same.
class Sorter {
 public:
  explicit Sorter(runtime::Disk& disk, const SortLimits& limits = {}) : disk_(disk), limits_(limits) {}

  // Replaces the output, complete and synced, by the extract; a stop at any moment leaves the old file or the new one.
  // Numrec: records written. Retcode: the status. Equal records keep their order; a part of a record at the input's end
  // is none; the count of records is limited to MaxSortRecords, and an input with more is unreadable. Where the new
  // file stands already and a sync of its folder fails, that Failure is thrown.
  void Sort(std::string_view input, std::string_view output, std::string_view statement, std::int32_t& Numrec,
            std::int32_t& Retcode);

 private:
  runtime::Disk& disk_;
  SortLimits limits_;
  SortWorkers workers_;
  std::optional<SortTable> last_;
};

}  // namespace sort
