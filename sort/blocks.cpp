// One call on the file for each block.
#include "sort/blocks.h"

#include <algorithm>

namespace sort {

bool BlockReader::Fill() {
  std::int64_t count = std::min(in_block_, end_ - next_);
  if (count <= 0) return false;
  std::size_t length = static_cast<std::size_t>(count) * record_length_;
  std::int64_t offset = next_ * static_cast<std::int64_t>(record_length_);
  if (file_.Read(block_, length, offset) < length) throw runtime::Failure{runtime::InputPastEnd, file_.Name()};
  next_ += count;
  at_ = block_;
  filled_ = at_ + length;
  return true;
}

void BlockWriter::MakeRoom() {
  constexpr std::int64_t Boundary = 64 * 1024;
  auto rest = static_cast<std::size_t>((offset_ + static_cast<std::int64_t>(filled_)) % Boundary);
  if (rest + record_length_ > block_.size() || rest > filled_) rest = 0;
  WriteOut(filled_ - rest);
  std::copy_n(block_.data() + filled_ - rest, rest, block_.data());
  filled_ = rest;
}

void BlockWriter::Flush() { WriteOut(filled_); }

void BlockWriter::WriteOut(std::size_t length) {
  file_.Write({block_.data(), length}, offset_);
  offset_ += static_cast<std::int64_t>(length);
}

}  // namespace sort
