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
// Members of the names left_name and right_name for each of them, in a list "differences" of the open object.
void AddDifferences(const store::FilmRecord& left, std::string_view left_name, const store::FilmRecord& right,
                    std::string_view right_name, Json& json);

// The field without the blanks after it, every character kept, in UTF-8.
std::string FieldText(const store::FilmRecord& film, store::FilmField field);

}  // namespace companion
