// Records of one length read from a file, or written to it, one after the other, in large blocks.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>

#include "runtime/whole_io.h"

namespace store {

inline constexpr std::size_t BlockBytes = 256 * 1024;

// Lengths in bytes, records from 0. A failure of the file is thrown.
class BlockReader {
 public:
  // Count: of records, which must be there. Block: an upper bound that a single record may exceed.
  BlockReader(const runtime::Opened& file, std::size_t record_length, std::int64_t first, std::int64_t count,
              std::size_t block = BlockBytes)
      : file_(file),
        record_length_(record_length),
        in_block_(static_cast<std::int64_t>(std::max<std::size_t>(1, block / record_length))),
        next_(first),
        end_(first + count),
        bytes_(std::make_unique_for_overwrite<char[]>(
            static_cast<std::size_t>(std::min(in_block_, std::max<std::int64_t>(count, 1))) * record_length)) {}

  // The next record, good until the next call; nullptr behind the last.
  const char* Next() {
    if (at_ == filled_ && !Fill()) return nullptr;
    const char* record = at_;
    at_ += record_length_;
    return record;
  }

 private:
  bool Fill();

  const runtime::Opened& file_;
  std::size_t record_length_;
  std::int64_t in_block_, next_, end_;
  std::unique_ptr<char[]> bytes_;
  const char* at_ = nullptr;
  const char* filled_ = nullptr;
};

class BlockWriter {
 public:
  BlockWriter(const runtime::Opened& file, std::size_t record_length, std::int64_t first,
              std::size_t block = BlockBytes)
      : file_(file),
        record_length_(record_length),
        size_(std::max(record_length, block)),
        offset_(first * static_cast<std::int64_t>(record_length)),
        bytes_(std::make_unique_for_overwrite<char[]>(size_)) {}

  // Where the next record is to be put.
  char* Next() {
    if (filled_ + record_length_ > size_) Flush();
    char* record = bytes_.get() + filled_;
    filled_ += record_length_;
    return record;
  }
  // Must follow the last record.
  void Flush();

 private:
  const runtime::Opened& file_;
  std::size_t record_length_, size_, filled_ = 0;
  std::int64_t offset_;
  std::unique_ptr<char[]> bytes_;
};

}  // namespace store
