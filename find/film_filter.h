// A quick look that passes over most films: whether a stretch of a record may hold a text at all.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace find {

class FilmFilter {
 public:
  // Capitals: the text sought; the stretch runs from an offset on for so many bytes of each record.
  FilmFilter(std::string_view capitals, int offset, int width);
  // How many whole records at the front of these bytes, most at the most, do not have the first two characters of the
  // text side by side in the stretch, in either case. 0 for a text of fewer characters.
  std::int64_t CountNonMatches(std::string_view records, std::int64_t most) const;

 private:
  // A byte is the character, in either case, when the bits that do not tell the case are the same. Now and then another
  // byte passes, too.
  struct CharacterTest {
    unsigned char Mask = 0;
    unsigned char Bits = 0;
  };
  static CharacterTest TestOf(char capital);
  bool MayHold(const char* record) const;

  bool takes_any_ = false;
  std::size_t offset_ = 0;
  std::size_t pairs_ = 0;
  std::array<CharacterTest, 2> tests_{};
};

}  // namespace find
