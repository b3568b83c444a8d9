// Codes, minutes, years and dates as other catalogues write them, turned into what a field holds.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/film_record.h"

namespace exchange {

// The bytes that the field holds for a text in Windows-1252 that is too long for it or is not a code itself; nothing if
// no rule covers it. Ignores case.
std::optional<std::string> CodeOfWord(store::FilmField field, std::string_view text);

// Whether the field contains only codes from a table, one or two letters long.
bool HoldsCode(store::FilmField field);

// The field as AppendField appends it; for a format, aspect or genre the word for its code, if there is one.
void AppendWord(const store::FilmRecord& film, store::FilmField field, std::string& utf8);

}  // namespace exchange
