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
  if (progress_) (*progress_)(static_cast<double>(next_) / static_cast<double>(end_));
  at_ = block_;
  filled_ = at_ + length;
  return true;
}

void BlockWriter::Flush() {
  file_.Write({block_.data(), filled_}, offset_);
  offset_ += static_cast<std::int64_t>(filled_);
  filled_ = 0;
}

}  // namespace sort
