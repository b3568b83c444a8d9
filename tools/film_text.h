// Reads a collection written as text and makes its master file: one block of lines for each slot, an empty line
// between. A block is the word "free", or lines "Field=value" in UTF-8; a block without a title is a fault. A line
// "Fields=Title|Year|..." begins a table that runs to the end: each later line is a slot, its values between bars.
// Lines that begin with # are comments.
#pragma once

#include <istream>
#include <string>
#include <string_view>

namespace tools {

struct FilmText {
  // The bytes of the master file; of no use if there are faults.
  std::string MasterFile;
  // A line "NAME:LINE: what is wrong" for each fault.
  std::string Faults;
};

// name: what the faults call the text.
FilmText ReadFilmText(std::istream& text, std::string_view name);

}  // namespace tools
