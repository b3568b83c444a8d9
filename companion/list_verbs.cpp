// list prints films, chosen by tests, sorted, in columns; search is the same and fails if there are none.
#include <algorithm>

#include "companion/field_tests.h"
#include "companion/json.h"
#include "companion/printable.h"
#include "companion/reading.h"
#include "companion/table.h"
#include "companion/verbs.h"
#include "runtime/code_page.h"

namespace companion {
namespace {

constexpr std::string_view UsualColumns = "number,title,year,format,genre,time,director";

struct SortKey {
  FieldName Name;
  bool Descending = false;
};

struct Request {
  std::vector<FieldTest> Tests;
  std::vector<SortKey> Keys;
  std::vector<FieldName> Columns;
};

bool ReadKeys(std::string_view list, Request& request, std::string& complaint) {
  for (std::size_t at = 0; at <= list.size();) {
    const std::size_t end = std::min(list.find(',', at), list.size());
    std::string_view word = list.substr(at, end - at);
    const bool descending = word.starts_with('-');
    if (descending) word.remove_prefix(1);
    std::optional<FieldName> name = FindField(word);
    complaint = "no field is called " + std::string(word);
    if (!name) return false;
    request.Keys.push_back({*std::move(name), descending});
    at = end + 1;
  }
  return true;
}

bool ReadColumns(const Invocation& invocation, Request& request, std::string& complaint) {
  const std::optional<std::string> asked = invocation.Value("columns");
  if (asked == "all" || (!asked && invocation.Json)) {
    request.Columns = AllFields();
    return true;
  }
  std::string unknown;
  std::optional<std::vector<FieldName>> columns = FindFields(asked.value_or(std::string(UsualColumns)), unknown);
  complaint = "no field is called " + unknown;
  if (!columns) return false;
  request.Columns = *std::move(columns);
  return true;
}

std::optional<Request> ReadRequest(const Invocation& invocation, std::string& complaint) {
  Request request;
  for (const std::string& argument : invocation.Arguments) {
    std::optional<FieldTest> test = ParseTest(argument, complaint);
    if (!test) return std::nullopt;
    request.Tests.push_back(*std::move(test));
  }
  const std::optional<std::string> keys = invocation.Value("sort");
  if (keys && !ReadKeys(*keys, request, complaint)) return std::nullopt;
  if (!ReadColumns(invocation, request, complaint)) return std::nullopt;
  return request;
}

bool Precedes(const NumberedFilm& left, const NumberedFilm& right, const std::vector<SortKey>& keys) {
  for (const SortKey& key : keys) {
    // Blanks are last either way.
    const bool blank = ContentOf(left, key.Name).empty() || ContentOf(right, key.Name).empty();
    const bool turned = key.Descending && !blank;
    if (ComesBefore(turned ? right : left, turned ? left : right, key.Name)) return true;
    if (ComesBefore(turned ? left : right, turned ? right : left, key.Name)) return false;
  }
  return false;
}

void PrintJson(const std::vector<NumberedFilm>& films, const std::vector<FieldName>& columns, Output& output) {
  Json json(output.Text);
  json.BeginList();
  for (const NumberedFilm& film : films) {
    json.BeginObject();
    for (const FieldName& column : columns) {
      if (column.IsNumber())
        json.Add(column.Name, film.Number);
      else
        json.Add(column.Name, runtime::ToUtf8(ContentOf(film, column)));
    }
    json.End();
  }
}

bool IsRight(const FieldName& name) { return name.IsNumber() || name.Fields.front() == store::FilmField::Time; }

void PrintRows(const std::vector<NumberedFilm>& films, const std::vector<FieldName>& names, Output& output) {
  std::vector<Column> columns;
  columns.reserve(names.size());
  for (const FieldName& name : names) columns.push_back({std::string(name.Name), IsRight(name)});
  std::vector<std::vector<std::string>> rows;
  for (const NumberedFilm& film : films) {
    std::vector<std::string>& row = rows.emplace_back();
    for (const FieldName& name : names) {
      const std::string content = ContentOf(film, name);
      row.push_back(output.Columns ? Printable(content) : Escaped(content));
    }
  }
  if (!output.Columns) {
    PrintTabs(columns, rows, output.Text);
    return;
  }
  if (!rows.empty()) PrintTable(columns, rows, static_cast<std::size_t>(output.Columns), output.Text);
  output.Text << Counted(static_cast<std::int64_t>(rows.size()), "film") << "\n";
}

// Prints the films and says how many there were; nothing after a complaint, whose status is then set.
std::optional<std::size_t> PrintFilms(const Invocation& invocation, Output& output, int& status) {
  std::string complaint;
  const std::optional<Request> request = ReadRequest(invocation, complaint);
  if (!request) {
    status = WrongUsage(invocation.Verb, output, complaint);
    return std::nullopt;
  }
  const Reading reading(invocation);
  std::vector<NumberedFilm> films;
  const bool read = reading.EachSlot([&](const NumberedFilm& film) {
    if (HasTitle(film.Film) && AllHold(request->Tests, film)) films.push_back(film);
  });
  if (!read) {
    status = RefuseLength(reading, output);
    return std::nullopt;
  }
  std::stable_sort(films.begin(), films.end(), [&](const NumberedFilm& left, const NumberedFilm& right) {
    return Precedes(left, right, request->Keys);
  });
  if (invocation.Json)
    PrintJson(films, request->Columns, output);
  else
    PrintRows(films, request->Columns, output);
  return films.size();
}

}  // namespace

int List(const Invocation& invocation, Output& output) {
  int status = Done;
  PrintFilms(invocation, output, status);
  return status;
}

int Search(const Invocation& invocation, Output& output) {
  int status = Done;
  const std::optional<std::size_t> films = PrintFilms(invocation, output, status);
  return films == 0u ? Found : status;
}

}  // namespace companion
