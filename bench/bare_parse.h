// What the libraries take to read a text when nothing is made of it.
#pragma once

#include <string_view>

namespace bench {

// format: csv, json, rec or tellico. The lines of rec are only told apart. Throws std::runtime_error if it cannot be
// read.
void BareParse(std::string_view format, std::string_view text);
std::string_view BareParser(std::string_view format);

}  // namespace bench
