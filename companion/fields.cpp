#include "companion/fields.h"

#include <charconv>

#include "companion/numbers.h"
#include "runtime/text.h"

namespace companion {
namespace {

using store::FilmField;

constexpr std::string_view NumberName = "Number";
constexpr std::string_view StarName = "Star";

const std::vector<FilmField> Stars = {FilmField::Star1, FilmField::Star2, FilmField::Star3,
                                      FilmField::Star4, FilmField::Star5, FilmField::Star6};

bool SameWord(std::string_view left, std::string_view right) { return runtime::Upper(left) == runtime::Upper(right); }

}  // namespace

std::optional<FieldName> FindField(std::string_view name) {
  if (SameWord(name, NumberName)) return FieldName{NumberName, {}};
  if (SameWord(name, StarName)) return FieldName{StarName, Stars};
  for (const store::FilmFieldRow& row : store::FilmFields) {
    if (row.Field != FilmField::Tail && SameWord(name, row.Name)) return FieldName{row.Name, {row.Field}};
  }
  return std::nullopt;
}

std::optional<std::vector<FieldName>> FindFields(std::string_view list, std::string& unknown) {
  std::vector<FieldName> names;
  for (std::size_t at = 0; at <= list.size();) {
    const std::size_t end = std::min(list.find(',', at), list.size());
    unknown = list.substr(at, end - at);
    std::optional<FieldName> name = FindField(unknown);
    if (!name) return std::nullopt;
    names.push_back(*std::move(name));
    at = end + 1;
  }
  return names;
}

std::vector<FieldName> AllFields() {
  std::vector<FieldName> names = {{NumberName, {}}};
  for (FilmField field : AnyField().Fields) names.push_back({RowOf(field).Name, {field}});
  return names;
}

FieldName AnyField() {
  FieldName all{"any field", {}};
  for (const store::FilmFieldRow& row : store::FilmFields) {
    if (row.Field != FilmField::Tail) all.Fields.push_back(row.Field);
  }
  return all;
}

std::string_view Content(const store::FilmRecord& film, FilmField field) { return runtime::Trim(film.Get(field)); }

std::string ContentOf(const NumberedFilm& film, const FieldName& name) {
  if (name.IsNumber()) return std::to_string(film.Number);
  std::string all;
  for (FilmField field : name.Fields) {
    const std::string_view content = Content(film.Film, field);
    if (!content.empty()) all.append(all.empty() ? "" : ", ").append(content);
  }
  return all;
}

std::optional<std::int64_t> NumberIn(std::string_view text) {
  if (text.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  return WholeNumber(text);
}

bool ComesBefore(const NumberedFilm& left, const NumberedFilm& right, const FieldName& name) {
  const std::string left_text = runtime::Upper(ContentOf(left, name));
  const std::string right_text = runtime::Upper(ContentOf(right, name));
  if (left_text.empty() || right_text.empty()) return !left_text.empty() && right_text.empty();
  const std::optional<std::int64_t> left_number = NumberIn(left_text), right_number = NumberIn(right_text);
  if (left_number && right_number) return *left_number < *right_number;
  if (left_number || right_number) return left_number.has_value();
  return left_text < right_text;
}

}  // namespace companion
