// A fast pre-filter for searches: skips most films whose fields cannot contain the text.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace find {

// Compares a byte with the bits that differ by case masked out, so a few other bytes match too.
struct CharacterTest {
  unsigned char Mask = 0;
  unsigned char Bits = 0;
};
// Two characters next to each other.
using PairTest = std::array<CharacterTest, 2>;

class FilmFilter {
 public:
  // Capitals: the text sought. Offset and width: the part of each record to search.
  FilmFilter(std::string_view capitals, int offset, int width);
  // Counts the leading whole records, at most `limit`, that do not contain the text's first two characters next to each
  // other, ignoring case. 0 for a text of fewer than two characters.
  std::int64_t CountNonMatches(std::string_view records, std::int64_t limit) const;

 private:
  bool matches_any_ = false;
  std::size_t offset_ = 0;
  std::size_t pairs_ = 0;
  PairTest tests_{};
};

}  // namespace find
