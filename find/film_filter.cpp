// A plain loop without branches, so that the compiler vectorizes it. The last vector may read past the field; the false
// positives are compared in full later.
#include "find/film_filter.h"

#include <algorithm>

#include "runtime/text.h"
#include "store/film_record.h"

namespace find {
namespace {

constexpr std::size_t VectorWidth = 16;

}  // namespace

FilmFilter::FilmFilter(std::string_view capitals, int offset, int width) {
  pairs_ = (static_cast<std::size_t>(width) - 1 + VectorWidth - 1) / VectorWidth * VectorWidth;
  // A pair is two bytes; none past the record is read.
  offset_ = std::min(static_cast<std::size_t>(offset), store::RecordLength - 1 - pairs_);
  matches_any_ = capitals.size() < 2;
  if (!matches_any_) tests_ = {TestOf(capitals[0]), TestOf(capitals[1])};
}

FilmFilter::CharacterTest FilmFilter::TestOf(char capital) {
  auto bits = static_cast<unsigned char>(capital);
  unsigned char case_bits = 0;
  for (int code = 0; code < 256; ++code) {
    if (runtime::Upper(static_cast<char>(code)) == capital) case_bits |= static_cast<unsigned char>(code ^ bits);
  }
  auto mask = static_cast<unsigned char>(~case_bits);
  return {mask, static_cast<unsigned char>(bits & mask)};
}

std::int64_t FilmFilter::CountNonMatches(std::string_view records, std::int64_t limit) const {
  if (matches_any_) return 0;
  std::int64_t whole = std::min(limit, static_cast<std::int64_t>(records.size() / store::RecordLength));
  const char* record = records.data();
  std::int64_t skipped = 0;
  for (; skipped < whole && !MayContain(record); ++skipped) record += store::RecordLength;
  return skipped;
}

bool FilmFilter::MayContain(const char* record) const {
  const char* text = record + offset_;
  const auto [first, second] = tests_;
  unsigned char found = 0;
  for (std::size_t index = 0; index < pairs_; ++index) {
    // Both differences are 0 at the pair.
    auto left = static_cast<unsigned char>((text[index] & first.Mask) ^ first.Bits);
    auto right = static_cast<unsigned char>((text[index + 1] & second.Mask) ^ second.Bits);
    found |= (left | right) == 0 ? 0xFF : 0;
  }
  return found != 0;
}

}  // namespace find
