// Tests of the command line that choose films: director~hawks, year>=1940, format=V, or a bare word for any field.
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
  bool Denied = false;  // holds for no field of the name, not for one
  std::string Value;    // in Windows-1252, upper case
};

// Nothing if it is no test: an unknown field, or characters that no film can have, which `complaint` says.
std::optional<FieldTest> ParseTest(std::string_view utf8, std::string& complaint);
// Ignores case and the blanks around a field. A code is equal to itself and to its word. Order is by value between
// numbers, else by text; a blank field has no order.
bool Holds(const FieldTest& test, const NumberedFilm& film);
bool AllHold(const std::vector<FieldTest>& tests, const NumberedFilm& film);

}  // namespace companion
