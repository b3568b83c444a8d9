// Tests on the command line that select films: director~hawks, year>=1940, format=V, or a bare word for any field.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "companion/fields.h"

namespace companion {

struct FieldTest {
  enum class Asks { Equal, Contains, Less, LessOrEqual, Greater, GreaterOrEqual };
  FieldName Name;
  Asks As = Asks::Equal;
  bool Denied = false;  // no field of the name may pass, instead of any
  std::string Value;    // in Windows-1252, upper case
};

// Nothing if it is not a test; `complaint` says why: an unknown field, or characters that no film can have.
std::optional<FieldTest> ParseTest(std::string_view utf8, std::string& complaint);
// Ignores case and the blanks around a field. A code is equal to itself and to its word. Numbers are ordered by value,
// all else as text; a blank field is neither less nor greater.
bool Holds(const FieldTest& test, const NumberedFilm& film);
bool AllHold(const std::vector<FieldTest>& tests, const NumberedFilm& film);

}  // namespace companion
