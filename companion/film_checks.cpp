// One function for each kind of trouble; codes and numbers are tables.
#include "companion/film_checks.h"

#include <algorithm>
#include <array>

#include "companion/fields.h"
#include "companion/printable.h"
#include "runtime/text.h"
#include "store/article.h"
#include "store/film_codes.h"
#include "store/sort_pass.h"

namespace companion {
namespace {

using store::FilmField;

constexpr std::string_view LineEnd = "\r\n";

std::string Quoted(std::string_view text) { return "\"" + Printable(text) + "\""; }

template <typename Table, typename CodeOfRow>
std::vector<std::string_view> CodesOf(const Table& table, CodeOfRow code_of_row) {
  std::vector<std::string_view> codes;
  codes.reserve(std::size(table));
  for (const auto& row : table) codes.push_back(code_of_row(row));
  return codes;
}

struct CodedField {
  FilmField Field;
  std::vector<std::string_view> Codes;
};

const std::vector<CodedField>& CodedFields() {
  const auto code = [](const auto& row) { return row.Code; };
  const auto word = [](std::string_view row) { return row; };
  static const std::vector<CodedField> fields = {
      {FilmField::Format, CodesOf(store::Formats, code)},     {FilmField::Genre, CodesOf(store::Genres, code)},
      {FilmField::Letter, CodesOf(store::Aspects, code)},     {FilmField::CLV1, CodesOf(store::DiscModes, word)},
      {FilmField::Color1, CodesOf(store::ColourWords, word)}, {FilmField::Rating, CodesOf(store::RatingCodes, word)},
  };
  return fields;
}

// The code but for its case; "" if there is none.
std::string_view InTheRightCase(const CodedField& coded, std::string_view content) {
  for (std::string_view code : coded.Codes) {
    if (runtime::Upper(code) == runtime::Upper(content)) return code;
  }
  return "";
}

void LookAtCode(const NumberedFilm& film, const CodedField& coded, Findings& findings) {
  const std::string_view content = Content(film.Film, coded.Field);
  if (content.empty() || std::find(coded.Codes.begin(), coded.Codes.end(), content) != coded.Codes.end()) return;
  const std::string name(RowOf(coded.Field).Name);
  const std::string_view code = InTheRightCase(coded, content);
  if (code.empty()) {
    findings.push_back(
        {film.Number, name, Quoted(content) + " is no code", "Choose one from the list in the program."});
  } else {
    findings.push_back({film.Number, name, Quoted(content) + " is in the wrong case",
                        "The code is " + std::string(code) + ".", Mend{coded.Field, std::string(code)}});
  }
}

void LookAtNumber(const NumberedFilm& film, FilmField field, Findings& findings) {
  const std::string_view content = Content(film.Film, field);
  if (content.empty() || NumberIn(content)) return;
  findings.push_back(
      {film.Number, std::string(RowOf(field).Name), Quoted(content) + " is no number", "Correct it in the program."});
}

// As a save makes it.
store::FilmRecord Saved(const store::FilmRecord& film) {
  const std::string_view field = film.Get(FilmField::Title);
  store::FilmRecord saved = film;
  store::MoveArticle(saved, field.substr(0, field.find_last_not_of(' ') + 1), store::TitleEndOf(film));
  return saved;
}

// Whether a save moves the article and nothing else: a part of the title can be lost, another article can follow.
bool IsOnlyMoved(const store::FilmRecord& film, const store::FilmRecord& saved) {
  const std::string before(Content(film, FilmField::Title));
  const std::size_t blank = before.find(' ');
  return blank != std::string::npos && Saved(saved).Bytes == saved.Bytes &&
         Content(saved, FilmField::Title) == before.substr(blank + 1) + ", " + before.substr(0, blank);
}

bool IsControl(char character) {
  const auto code = static_cast<unsigned char>(character);
  return code < 0x20 || code == 0x7F;
}

// The five bytes that the code page leaves undefined.
bool IsUnstorable(char character) {
  constexpr std::string_view Undefined = "\x81\x8D\x8F\x90\x9D";
  return Undefined.find(character) != std::string_view::npos;
}

}  // namespace

FilmChecks::FilmChecks(const sort::Weights& weights, Findings& findings)
    : is_sorted_(sort::ParseStatement(store::StatementOf(store::SortPasses[0]))->Include, weights),
      findings_(findings) {}

// Everything else is looked at as it is without control characters, so that all mends of a film fit together.
void FilmChecks::Look(const NumberedFilm& film) {
  if (!HasTitle(film.Film)) {
    LookAtFree(film);
    return;
  }
  NumberedFilm clean = film;
  for (FilmField field : AnyField().Fields) LookAtBytes(film, field, clean.Film);
  LookAtTitle(clean);
  LookAtDouble(clean);
  for (const CodedField& coded : CodedFields()) LookAtCode(clean, coded, findings_);
  LookAtNumber(clean, FilmField::Time, findings_);
  LookAtNumber(clean, FilmField::Year, findings_);
  if (film.Film.Get(FilmField::Tail) != LineEnd) {
    findings_.push_back({film.Number, "line end", "the record does not end in CR LF",
                         "Other programs cannot read the file as lines.", Mend{FilmField::Tail, std::string(LineEnd)}});
  }
}

// A slot is blank before anything is saved in it.
void FilmChecks::LookAtFree(const NumberedFilm& film) {
  for (FilmField field : AnyField().Fields) {
    if (Content(film.Film, field).empty()) continue;
    findings_.push_back({film.Number, std::string(RowOf(field).Name), "the record has no title, but is not empty",
                         "New takes it for a film of its own. Give it a title, or delete it, in the program."});
    return;
  }
}

void FilmChecks::LookAtTitle(const NumberedFilm& film) {
  const std::string_view field = film.Film.Get(FilmField::Title);
  const std::string_view title = field.substr(0, field.find_last_not_of(' ') + 1);
  const store::FilmRecord saved = Saved(film.Film);
  if (saved.Bytes != film.Film.Bytes) {
    const std::string_view moved = Content(saved, FilmField::Title);
    Finding finding{film.Number, "Title", Quoted(title) + " begins with an article",
                    "The next save makes it " + Quoted(moved) + "."};
    if (IsOnlyMoved(film.Film, saved)) finding.How = Mend{FilmField::Title, std::string(moved)};
    findings_.push_back(std::move(finding));
  }
  if (!is_sorted_.Keeps(film.Film.Bytes.data())) {
    findings_.push_back({film.Number, "Title", Quoted(title) + " begins with a mark that sorts below the digits",
                         "A sort leaves it out of all titles. Begin it with a letter or a digit."});
  }
  if (title.starts_with("49")) {
    findings_.push_back(
        {film.Number, "Title", Quoted(title) + " begins with 49",
         "In the alphabetical views it is shown as if it were being edited. Write the number as a word."});
  }
}

void FilmChecks::LookAtDouble(const NumberedFilm& film) {
  std::pair key(runtime::Upper(Content(film.Film, FilmField::Title)), std::string(Content(film.Film, FilmField::Year)));
  const auto [entry, is_new] = seen_.emplace(std::move(key), film.Number);
  if (is_new) return;
  findings_.push_back({film.Number, "Title", "the same title and year as record " + std::to_string(entry->second),
                       "If it is the same film, delete one in the program."});
}

void FilmChecks::LookAtBytes(const NumberedFilm& film, FilmField field, store::FilmRecord& clean) {
  const std::string_view bytes = film.Film.Get(field);
  const std::string name(RowOf(field).Name);
  if (std::any_of(bytes.begin(), bytes.end(), IsControl)) {
    std::string mended(bytes);
    std::replace_if(mended.begin(), mended.end(), IsControl, ' ');
    Finding finding{film.Number, name, Quoted(runtime::Trim(bytes)) + " has control characters",
                    "A blank can stand for each."};
    // Without a title the film would be gone.
    if (field == FilmField::Title && runtime::Trim(mended).empty()) {
      finding.ToDo = "Give the film a title in the program.";
    } else {
      clean.Set(field, mended);
      finding.How = Mend{field, std::move(mended)};
    }
    findings_.push_back(std::move(finding));
  }
  if (std::any_of(bytes.begin(), bytes.end(), IsUnstorable)) {
    findings_.push_back({film.Number, name, Quoted(runtime::Trim(bytes)) + " has characters that the code page lacks",
                         "Type them again in the program."});
  }
}

}  // namespace companion
