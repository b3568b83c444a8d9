// Which column of a foreign file goes into which field: by the field's name, by the names that catalogues commonly use,
// or as the user says.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/film_record.h"

namespace exchange {

struct Target {
  enum class Kind { Nothing, Record, Field, Stars } What = Kind::Nothing;
  store::FilmField Field = store::FilmField::Title;
  bool operator==(const Target&) const = default;
};

struct ColumnMap {
  std::string Column;
  Target To;
};

// Of "Movie Name=Title": a column and a field, "Record", "Stars" (a list that fills the six) or nothing at all, which
// leaves the column out. Nothing if there is no such field.
std::optional<ColumnMap> ParseColumnMap(std::string_view text);

// As the maps say, else as the name says. Case is ignored, and so are blanks and other marks of ASCII.
Target TargetOf(std::string_view column, const std::vector<ColumnMap>& maps);

// "Title", "Stars", "Record", "" for nothing.
std::string_view NameOf(const Target& target);

}  // namespace exchange
