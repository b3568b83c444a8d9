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
  std::int64_t CannotHold(std::string_view records, std::int64_t most) const;

 private:
  bool MayHold(const char* record) const;
  bool takes_any_ = false;
  std::size_t offset_;
  std::size_t pairs_;
  // The one or two bytes that each character has as its capital or as itself.
  std::array<std::array<char, 2>, 2> bytes_{};
};

}  // namespace find
