// Codes, minutes, years and dates as other catalogues write them, turned into what a field holds.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/film_record.h"

namespace exchange {

// The bytes that the field holds for a text in Windows-1252 that is too long for it or is no code as it is; nothing if
// no rule knows it. Case does not matter.
std::optional<std::string> CodeOfWord(store::FilmField field, std::string_view text);

// Whether the field holds nothing but the codes of a table, one or two letters long.
bool HoldsCode(store::FilmField field);

// The field as AppendField appends it; of a format, aspect or genre the word of its code, if there is one.
void AppendWord(const store::FilmRecord& film, store::FilmField field, std::string& utf8);

}  // namespace exchange
