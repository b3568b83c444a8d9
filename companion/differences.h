// What differs between two films, field by field.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "companion/json.h"
#include "store/film_record.h"

namespace companion {

// The fields whose bytes differ, in the order of the record, without its line end.
std::vector<store::FilmField> DifferingFields(const store::FilmRecord& left, const store::FilmRecord& right);
// A line "Field  left -> right" for each of them.
void PrintDifferences(const store::FilmRecord& left, const store::FilmRecord& right, std::ostream& text);
// For each of them, members named left_name and right_name, in a list "differences" of the open object.
void AddDifferences(const store::FilmRecord& left, std::string_view left_name, const store::FilmRecord& right,
                    std::string_view right_name, Json& json);

// The field in UTF-8, without trailing blanks; every other character is kept.
std::string FieldText(const store::FilmRecord& film, store::FilmField field);

}  // namespace companion
