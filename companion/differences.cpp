#include "companion/differences.h"

#include "companion/printable.h"
#include "runtime/code_page.h"

namespace companion {
namespace {

constexpr std::size_t NameColumns = 16;

std::string_view WithoutPadding(const store::FilmRecord& film, store::FilmField field) {
  const std::string_view text = film.Get(field);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string Shown(const store::FilmRecord& film, store::FilmField field) {
  const std::string_view text = WithoutPadding(film, field);
  return text.empty() ? "(empty)" : Printable(text);
}

}  // namespace

std::vector<store::FilmField> DifferingFields(const store::FilmRecord& left, const store::FilmRecord& right) {
  std::vector<store::FilmField> fields;
  for (const store::FilmFieldRow& row : store::FilmFields) {
    if (row.Field != store::FilmField::Tail && left.Get(row.Field) != right.Get(row.Field)) fields.push_back(row.Field);
  }
  return fields;
}

void PrintDifferences(const store::FilmRecord& left, const store::FilmRecord& right, std::ostream& text) {
  for (store::FilmField field : DifferingFields(left, right)) {
    text << "  " << Padded(RowOf(field).Name, NameColumns) << Shown(left, field) << " -> " << Shown(right, field)
         << "\n";
  }
}

void AddDifferences(const store::FilmRecord& left, std::string_view left_name, const store::FilmRecord& right,
                    std::string_view right_name, Json& json) {
  json.BeginList("differences");
  for (store::FilmField field : DifferingFields(left, right)) {
    json.BeginObject();
    json.Add("field", RowOf(field).Name);
    json.Add(left_name, FieldText(left, field));
    json.Add(right_name, FieldText(right, field));
    json.End();
  }
  json.End();
}

std::string FieldText(const store::FilmRecord& film, store::FilmField field) {
  return runtime::ToUtf8(WithoutPadding(film, field));
}

}  // namespace companion
