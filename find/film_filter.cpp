// A plain loop without branches, so that the compiler vectorizes it. The last vector may read past the field; the false
// positives are compared in full later.
#include "find/film_filter.h"

#include <algorithm>

#include "runtime/text.h"
#include "store/film_record.h"

namespace find {
namespace {

constexpr std::size_t VectorWidth = 32;

[[gnu::always_inline]] inline bool MayContain(const char* text, std::size_t pairs, const PairTest& test) {
  const auto [first, second] = test;
  unsigned char found = 0;
  for (std::size_t index = 0; index < pairs; ++index) {
    // Both differences are 0 at the pair.
    auto left = static_cast<unsigned char>((text[index] & first.Mask) ^ first.Bits);
    auto right = static_cast<unsigned char>((text[index + 1] & second.Mask) ^ second.Bits);
    found |= (left | right) == 0 ? 0xFF : 0;
  }
  return found != 0;
}

// Text: the field of the first record. Compiled for longer vectors too: the processor decides at the start of the
// program which one runs.
#if defined(__x86_64__)
__attribute__((target_clones("avx2", "default")))
#endif
std::int64_t
CountRejected(const char* text, std::int64_t records, std::size_t pairs, const PairTest& test) {
  std::int64_t count = 0;
  for (; count < records && !MayContain(text, pairs, test); ++count) text += store::RecordLength;
  return count;
}

CharacterTest TestOf(char capital) {
  auto bits = static_cast<unsigned char>(capital);
  unsigned char case_bits = 0;
  for (int code = 0; code < 256; ++code) {
    if (runtime::Upper(static_cast<char>(code)) == capital) case_bits |= static_cast<unsigned char>(code ^ bits);
  }
  auto mask = static_cast<unsigned char>(~case_bits);
  return {mask, static_cast<unsigned char>(bits & mask)};
}

}  // namespace

FilmFilter::FilmFilter(std::string_view capitals, int offset, int width) {
  pairs_ = (static_cast<std::size_t>(width) - 1 + VectorWidth - 1) / VectorWidth * VectorWidth;
  // A pair is two bytes; none past the record is read.
  offset_ = std::min(static_cast<std::size_t>(offset), store::RecordLength - 1 - pairs_);
  matches_any_ = capitals.size() < 2;
  if (!matches_any_) tests_ = {TestOf(capitals[0]), TestOf(capitals[1])};
}

std::int64_t FilmFilter::CountNonMatches(std::string_view records, std::int64_t limit) const {
  if (matches_any_) return 0;
  std::int64_t whole = std::min(limit, static_cast<std::int64_t>(records.size() / store::RecordLength));
  return CountRejected(records.data() + offset_, whole, pairs_, tests_);
}

}  // namespace find
