// The table of operators, and what each asks.
#include "companion/field_tests.h"

#include <algorithm>

#include "runtime/code_page.h"
#include "runtime/text.h"
#include "store/film_codes.h"

namespace companion {
namespace {

using Asks = FieldTest::Asks;
using store::FilmField;

struct OperatorRow {
  std::string_view Sign;
  Asks As;
  bool Denied;
};

// Longer signs first.
// clang-format off
constexpr OperatorRow Operators[] = {
  { "!=", Asks::Equal,          true },
  { "!~", Asks::Contains,       true },
  { "<=", Asks::LessOrEqual,    false },
  { ">=", Asks::GreaterOrEqual, false },
  { "=",  Asks::Equal,          false },
  { "~",  Asks::Contains,       false },
  { "<",  Asks::Less,           false },
  { ">",  Asks::Greater,        false },
};
// clang-format on

// The first of them in the text; nullptr for a bare word.
const OperatorRow* FindOperator(std::string_view text, std::size_t& place) {
  place = text.find_first_of("!<>=~");
  if (place == std::string_view::npos) return nullptr;
  const auto* row = std::find_if(std::begin(Operators), std::end(Operators), [&](const OperatorRow& candidate) {
    return text.substr(place).starts_with(candidate.Sign);
  });
  return row == std::end(Operators) ? nullptr : row;
}

// The word that the screen shows for a code, "" if there is none.
std::string_view WordOfCode(FilmField field, std::string_view code) {
  if (field == FilmField::Format) return store::WordOf(store::Formats, code).value_or("");
  if (field == FilmField::Letter) return store::WordOf(store::Aspects, code).value_or("");
  const store::GenreRow* genre = field == FilmField::Genre ? store::GenreOf(code) : nullptr;
  return genre ? genre->Name : "";
}

bool IsInOrder(const FieldTest& test, std::string_view content) {
  if (content.empty()) return false;
  const std::optional<std::int64_t> number = NumberIn(content), limit = NumberIn(test.Value);
  int order = content.compare(test.Value);
  if (number && limit) order = *number < *limit ? -1 : *number > *limit;
  switch (test.As) {
    case Asks::Less:
      return order < 0;
    case Asks::LessOrEqual:
      return order <= 0;
    case Asks::Greater:
      return order > 0;
    default:
      return order >= 0;
  }
}

bool HoldsFor(const FieldTest& test, std::string_view content, std::string_view word) {
  const std::string upper = runtime::Upper(content), upper_word = runtime::Upper(word);
  switch (test.As) {
    case Asks::Equal:
      return upper == test.Value || (!word.empty() && upper_word == test.Value);
    case Asks::Contains:
      return upper.find(test.Value) != std::string::npos || upper_word.find(test.Value) != std::string::npos;
    default:
      return IsInOrder(test, upper);
  }
}

}  // namespace

std::optional<FieldTest> ParseTest(std::string_view utf8, std::string& complaint) {
  std::size_t place = 0;
  const OperatorRow* row = FindOperator(utf8, place);
  FieldTest test{AnyField(), Asks::Contains, false, ""};
  std::string_view value = utf8;
  if (row) {
    const std::optional<FieldName> name = FindField(utf8.substr(0, place));
    complaint = "no field is called " + std::string(utf8.substr(0, place));
    if (!name) return std::nullopt;
    test = {*name, row->As, row->Denied, ""};
    value.remove_prefix(place + row->Sign.size());
  }
  const std::optional<std::string> bytes = runtime::FromUtf8(value);
  complaint = "no film can have " + std::string(value);
  if (!bytes) return std::nullopt;
  test.Value = runtime::Upper(runtime::Trim(*bytes));
  return test;
}

bool Holds(const FieldTest& test, const NumberedFilm& film) {
  bool holds = false;
  if (test.Name.IsNumber()) {
    holds = HoldsFor(test, std::to_string(film.Number), "");
  } else {
    holds = std::any_of(test.Name.Fields.begin(), test.Name.Fields.end(), [&](FilmField field) {
      const std::string_view content = Content(film.Film, field);
      return HoldsFor(test, content, WordOfCode(field, content));
    });
  }
  return holds != test.Denied;
}

bool AllHold(const std::vector<FieldTest>& tests, const NumberedFilm& film) {
  return std::all_of(tests.begin(), tests.end(), [&](const FieldTest& test) { return Holds(test, film); });
}

}  // namespace companion
