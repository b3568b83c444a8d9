// The comparison is a plain loop over bytes without a branch, which the compiler turns into a few wide instructions.
#include "find/film_filter.h"

#include <algorithm>

#include "runtime/text.h"
#include "store/film_record.h"

namespace find {

FilmFilter::FilmFilter(std::string_view capitals, int offset, int width)
    : offset_(static_cast<std::size_t>(offset)), pairs_(static_cast<std::size_t>(width) - 1) {
  if (capitals.size() < 2) {
    takes_any_ = true;
    return;
  }
  for (std::size_t place = 0; place < 2; ++place) {
    bytes_[place] = {capitals[place], capitals[place]};
    for (int code = 0; code < 256; ++code) {
      char byte = static_cast<char>(code);
      if (byte != capitals[place] && runtime::Upper(byte) == capitals[place]) bytes_[place][1] = byte;
    }
  }
}

std::int64_t FilmFilter::CannotHold(std::string_view records, std::int64_t most) const {
  if (takes_any_) return 0;
  std::int64_t whole = std::min(most, static_cast<std::int64_t>(records.size() / store::RecordLength));
  const char* record = records.data();
  std::int64_t passed = 0;
  for (; passed < whole && !MayHold(record); ++passed) record += store::RecordLength;
  return passed;
}

bool FilmFilter::MayHold(const char* record) const {
  const char* text = record + offset_;
  const auto [first, first_small] = bytes_[0];
  const auto [second, second_small] = bytes_[1];
  unsigned char found = 0;
  for (std::size_t index = 0; index < pairs_; ++index) {
    found |= static_cast<unsigned char>(((text[index] == first) | (text[index] == first_small)) &
                                        ((text[index + 1] == second) | (text[index + 1] == second_small)));
  }
  return found != 0;
}

}  // namespace find
