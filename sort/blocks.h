// Reads or writes consecutive records of one length in large blocks.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "runtime/whole_io.h"

namespace sort {

// Lengths in bytes, records from 0. Block: buffer of at least one record. A failure of the file is thrown.
class BlockReader {
 public:
  // Count: of records, which must exist.
  BlockReader(const runtime::OpenFile& file, std::size_t record_length, std::int64_t first, std::int64_t count,
              std::span<char> block)
      : file_(file),
        record_length_(record_length),
        in_block_(static_cast<std::int64_t>(block.size() / record_length)),
        next_(first),
        end_(first + count),
        block_(block.data()) {}

  // The next record, valid until the next call; nullptr after the last.
  const char* Next() {
    if (at_ == filled_ && !Fill()) return nullptr;
    const char* record = at_;
    at_ += record_length_;
    return record;
  }

 private:
  bool Fill();

  const runtime::OpenFile& file_;
  std::size_t record_length_;
  std::int64_t in_block_, next_, end_;
  char* block_;
  const char* at_ = nullptr;
  const char* filled_ = nullptr;
};

// Writes up to boundaries of the system's pages, which is faster, and keeps the rest for the next block.
class BlockWriter {
 public:
  BlockWriter(const runtime::OpenFile& file, std::size_t record_length, std::int64_t first, std::span<char> block)
      : file_(file),
        record_length_(record_length),
        offset_(first * static_cast<std::int64_t>(record_length)),
        block_(block) {}

  // The place for the next record, in the buffer.
  char* Next() {
    if (filled_ + record_length_ > block_.size()) MakeRoom();
    char* record = block_.data() + filled_;
    filled_ += record_length_;
    return record;
  }
  // Call after the last record.
  void Flush();

 private:
  void MakeRoom();
  void WriteOut(std::size_t length);

  const runtime::OpenFile& file_;
  std::size_t record_length_, filled_ = 0;
  std::int64_t offset_;
  std::span<char> block_;
};

}  // namespace sort
