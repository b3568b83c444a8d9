// A quick look that passes over most films: whether a stretch of a record may hold a text at all.
#pragma once

#include <array>
#include <string_view>

namespace find {

class FilmFilter {
 public:
  // Capitals: the text sought; the stretch runs from an offset on for so many bytes of the record.
  FilmFilter(std::string_view capitals, int offset, int width);
  // False where the first two characters of the text do not stand side by side in the stretch, in either case. A record
  // that the file ends in always may.
  bool MayHold(std::string_view record) const;

 private:
  bool takes_any_ = false;
  std::size_t offset_;
  std::size_t pairs_;
  // The one or two bytes that each character has as its capital or as itself.
  std::array<std::array<char, 2>, 2> bytes_{};
};

}  // namespace find
