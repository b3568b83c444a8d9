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

void LookAtCode(const NumberedFilm& film, const CodedField& coded, LimitedFindings& findings) {
  const std::string_view content = Content(film.Film, coded.Field);
  if (content.empty() || std::find(coded.Codes.begin(), coded.Codes.end(), content) != coded.Codes.end()) return;
  const std::string_view code = InTheRightCase(coded, content);
  const std::string_view kind = code.empty() ? "is no code" : "is in the wrong case";
  if (!findings.Counts(RowOf(coded.Field).Name, kind, !code.empty())) return;
  Finding finding{film.Number, std::string(RowOf(coded.Field).Name), Quoted(content) + " " + std::string(kind),
                  "Choose one from the list in the program."};
  if (!code.empty()) {
    finding.ToDo = "The code is " + std::string(code) + ".";
    finding.How = Mend{coded.Field, std::string(code)};
  }
  findings.Add(std::move(finding));
}

void LookAtNumber(const NumberedFilm& film, FilmField field, LimitedFindings& findings) {
  const std::string_view content = Content(film.Film, field);
  if (content.empty() || NumberIn(content)) return;
  if (!findings.Counts(RowOf(field).Name, "is no number", false)) return;
  findings.Add(
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
  if (film.Film.Get(FilmField::Tail) != LineEnd && findings_.Counts("line end", "is not CR LF", true)) {
    findings_.Add({film.Number, "line end", "the record does not end in CR LF",
                   "Other programs cannot read the file as lines.", Mend{FilmField::Tail, std::string(LineEnd)}});
  }
}

// A slot is blank before anything is saved in it.
void FilmChecks::LookAtFree(const NumberedFilm& film) {
  for (FilmField field : AnyField().Fields) {
    if (Content(film.Film, field).empty()) continue;
    if (!findings_.Counts(RowOf(field).Name, "is not empty, but there is no title", false)) return;
    findings_.Add({film.Number, std::string(RowOf(field).Name), "the record has no title, but is not empty",
                   "New takes it for a film of its own. Give it a title, or delete it, in the program."});
    return;
  }
}

void FilmChecks::LookAtTitle(const NumberedFilm& film) {
  const std::string_view field = film.Film.Get(FilmField::Title);
  const std::string_view title = field.substr(0, field.find_last_not_of(' ') + 1);
  LookAtArticle(film, title);
  const auto tell = [&](std::string_view kind, std::string_view to_do) {
    if (!findings_.Counts("Title", kind, false)) return;
    findings_.Add({film.Number, "Title", Quoted(title) + " " + std::string(kind), std::string(to_do)});
  };
  if (!is_sorted_.Keeps(film.Film.Bytes.data())) {
    tell("begins with a mark that sorts below the digits",
         "A sort leaves it out of all titles. Begin it with a letter or a digit.");
  }
  if (title.starts_with("49")) {
    tell("begins with 49",
         "In the alphabetical views it is shown as if it were being edited. Write the number as a word.");
  }
}

void FilmChecks::LookAtArticle(const NumberedFilm& film, std::string_view title) {
  constexpr std::string_view Kind = "begins with an article";
  const store::FilmRecord saved = Saved(film.Film);
  if (saved.Bytes == film.Film.Bytes) return;
  const bool can_be_mended = IsOnlyMoved(film.Film, saved);
  if (!findings_.Counts("Title", Kind, can_be_mended)) return;
  const std::string_view moved = Content(saved, FilmField::Title);
  Finding finding{film.Number, "Title", Quoted(title) + " " + std::string(Kind),
                  "The next save makes it " + Quoted(moved) + "."};
  if (can_be_mended) finding.How = Mend{FilmField::Title, std::string(moved)};
  findings_.Add(std::move(finding));
}

void FilmChecks::LookAtDouble(const NumberedFilm& film) {
  std::pair key(runtime::Upper(Content(film.Film, FilmField::Title)), std::string(Content(film.Film, FilmField::Year)));
  const auto [entry, is_new] = seen_.emplace(std::move(key), film.Number);
  if (is_new || !findings_.Counts("Title", "is, with the year, the same as in an earlier one", false)) return;
  findings_.Add({film.Number, "Title", "the same title and year as record " + std::to_string(entry->second),
                 "If it is the same film, delete one in the program."});
}

void FilmChecks::LookAtBytes(const NumberedFilm& film, FilmField field, store::FilmRecord& clean) {
  const std::string_view bytes = film.Film.Get(field);
  if (std::any_of(bytes.begin(), bytes.end(), IsControl)) LookAtControls(film, field, clean);
  if (std::none_of(bytes.begin(), bytes.end(), IsUnstorable)) return;
  constexpr std::string_view Kind = "has characters that the code page lacks";
  const std::string_view name = RowOf(field).Name;
  if (!findings_.Counts(name, Kind, false)) return;
  findings_.Add({film.Number, std::string(name), Quoted(runtime::Trim(bytes)) + " " + std::string(Kind),
                 "Type them again in the program."});
}

void FilmChecks::LookAtControls(const NumberedFilm& film, FilmField field, store::FilmRecord& clean) {
  constexpr std::string_view Kind = "has control characters";
  const std::string_view bytes = film.Film.Get(field), name = RowOf(field).Name;
  std::string mended(bytes);
  std::replace_if(mended.begin(), mended.end(), IsControl, ' ');
  // Without a title the film would be gone.
  const bool can_be_mended = field != FilmField::Title || !runtime::Trim(mended).empty();
  if (can_be_mended) clean.Set(field, mended);
  if (!findings_.Counts(name, Kind, can_be_mended)) return;
  Finding finding{film.Number, std::string(name), Quoted(runtime::Trim(bytes)) + " " + std::string(Kind),
                  can_be_mended ? "A blank can stand for each." : "Give the film a title in the program."};
  if (can_be_mended) finding.How = Mend{field, std::move(mended)};
  findings_.Add(std::move(finding));
}

}  // namespace companion
