// Words on the command line that name fields of a film.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "companion/reading.h"
#include "store/film_record.h"

namespace companion {

// A field of the record, the number of the record, or several fields at once.
struct FieldName {
  std::string_view Name;
  std::vector<store::FilmField> Fields;  // none: the number

  bool IsNumber() const { return Fields.empty(); }
};

// Ignoring case: the names of the record, "number", and "star" for all six. Nothing if there is no such field.
std::optional<FieldName> FindField(std::string_view name);
// Names separated by commas. Nothing if one of them is no field; `unknown` then has its name.
std::optional<std::vector<FieldName>> FindFields(std::string_view list, std::string& unknown);
// The number and all fields.
std::vector<FieldName> AllFields();
// The whole record except its line end.
FieldName AnyField();

// The bytes of one field without surrounding blanks.
std::string_view Content(const store::FilmRecord& film, store::FilmField field);
// The same for a name; several fields are separated by commas, blank ones left out.
std::string ContentOf(const NumberedFilm& film, const FieldName& name);

// The text as a number, digits only.
std::optional<std::int64_t> NumberIn(std::string_view text);

// Orders films by a field: numbers by their value and before texts, texts ignoring case, blanks last.
bool ComesBefore(const NumberedFilm& left, const NumberedFilm& right, const FieldName& name);

}  // namespace companion
