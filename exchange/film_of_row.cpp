// Texts into fields: characters, codes, widths, and the article of the title.
#include "exchange/film_of_row.h"

#include <algorithm>
#include <charconv>

#include "exchange/coded_words.h"
#include "runtime/text.h"
#include "store/article.h"

namespace exchange {
namespace {

using store::FilmField;

constexpr std::size_t MostNoteBytes = 80;

std::string Quoted(std::string_view utf8) {
  if (utf8.size() <= MostNoteBytes) return "\"" + std::string(utf8) + "\"";
  std::size_t end = MostNoteBytes;
  while (end > 0 && (static_cast<unsigned char>(utf8[end]) & 0xC0) == 0x80) --end;
  return "\"" + std::string(utf8.substr(0, end)) + "...\"";
}

std::size_t WidthOf(FilmField field) { return static_cast<std::size_t>(store::RowOf(field).Width); }

void Tell(ReadFilm& film, FilmField field, std::string what) { film.Notes.push_back({field, std::move(what)}); }

// Cuts at the width of the field.
void Store(ReadFilm& film, FilmField field, std::string_view bytes) {
  const std::size_t width = WidthOf(field);
  film.Film.Set(field, bytes);
  film.Given.set(static_cast<std::size_t>(field));
  if (bytes.size() > width && bytes.find_last_not_of(' ') >= width) {
    Tell(film, field, "cut at " + std::to_string(width) + ": " + Quoted(TextOf(bytes)));
  }
}

// The article moves as a save moves it. But where a save drops a title that fills its field, it is cut to make room.
void StoreTitle(ReadFilm& film, std::string_view typed) {
  store::FilmRecord saved;
  saved.Set(FilmField::Title, typed);
  store::MoveArticle(saved, typed, store::TitleEndOf(saved));
  const std::string_view title = runtime::Trim(saved.Get(FilmField::Title));
  const bool dropped =
      title.starts_with(", ") && !typed.starts_with(", ") && runtime::Trim(typed).find(' ') != std::string_view::npos;
  if (!dropped) {
    const bool moved = saved.Get(FilmField::Title) != runtime::Fixed(typed, WidthOf(FilmField::Title));
    Store(film, FilmField::Title, moved ? title : typed);
    if (moved) Tell(film, FilmField::Title, "the article moves: " + Quoted(TextOf(title)));
    return;
  }
  const std::size_t blank = typed.find(' ');
  const std::string suffix = ", " + std::string(typed.substr(0, blank));
  const std::string_view rest = typed.substr(blank + 1, WidthOf(FilmField::Title) - suffix.size());
  Store(film, FilmField::Title, std::string(rest) + suffix);
  const std::string whole = std::string(typed.substr(blank + 1)) + suffix;
  Tell(film, FilmField::Title, "the article moves, cut at 40: " + Quoted(TextOf(whole)));
}

// A name without the role that may stand behind it.
std::string_view StarName(std::string_view text) {
  text = text.substr(0, std::min(text.find(" ("), text.find(" as ")));
  return runtime::Trim(text);
}

constexpr int Stars = 6;

}  // namespace

ReadFilm FilmMaker::Make(const Rows& row) {
  for (std::size_t column = targets_.size(); column < row.Width(); ++column) {
    targets_.push_back(TargetOf(row.Names()[column], maps_));
  }
  ReadFilm film;
  for (std::size_t column = 0; column < row.Width(); ++column) {
    if (targets_[column].What != Target::Kind::Record || !row.IsGiven(column)) continue;
    const std::string_view text = row.Text(column);
    std::from_chars(text.data(), text.data() + text.size(), film.Number);
  }
  film.Number = std::max<std::int64_t>(film.Number, 0);
  film.Exact = row.Own && film.Number > 0;
  film.Film.Set(FilmField::Tail, "\r\n");
  for (std::size_t column = 0; column < row.Width(); ++column) {
    if (!row.IsGiven(column) || row.Text(column).empty()) continue;
    if (targets_[column].What == Target::Kind::Stars) SetStars(film, row.Text(column));
    if (targets_[column].What == Target::Kind::Field) SetField(film, targets_[column].Field, row.Text(column));
  }
  return film;
}

std::string FilmMaker::Bytes(ReadFilm& film, FilmField field, std::string_view utf8) {
  std::string bytes, unstorable;
  if (AppendBytes(utf8, as_, bytes, unstorable) == 0) return bytes;
  std::string what;
  for (std::string_view rest = unstorable; !rest.empty() && what.size() < MostNoteBytes;) {
    std::string character;
    const char32_t code = TakeCharacter(rest);
    AppendCharacter(code, character);
    const std::string_view other = Transliteration(code);
    what.append(what.empty() ? "" : ", ").append(character).append(" becomes ");
    if (as_ == Unstorable::Transliterated) {
      what.append(other.empty() ? "nothing" : other);
    } else {
      what += '?';
      if (other != "?") what.append(" (").append(other.empty() ? "nothing" : other).append(" with --transliterate)");
    }
  }
  Tell(film, field, "cannot be stored: " + what);
  return bytes;
}

void FilmMaker::SetField(ReadFilm& film, FilmField field, std::string_view utf8) {
  std::string bytes = Bytes(film, field, utf8);
  if (film.Exact) {
    const auto code = bytes.size() > WidthOf(field) ? CodeOfWord(field, bytes) : std::nullopt;
    return Store(film, field, code ? *code : bytes);
  }
  if (field == FilmField::Tail) return;
  bytes = runtime::Trim(bytes);
  if (bytes.empty()) return;
  if (field == FilmField::Title) return StoreTitle(film, bytes);
  const bool fits = bytes.size() <= WidthOf(field);
  const bool is_coded =
      HoldsCode(field) || field == FilmField::CLV1 || field == FilmField::Color1 || field == FilmField::Rating;
  const auto code = !fits || is_coded ? CodeOfWord(field, bytes) : std::nullopt;
  if (code && *code != bytes) Tell(film, field, Quoted(TextOf(bytes)) + " becomes " + TextOf(*code));
  if (!code && HoldsCode(field) && !fits) {
    return Tell(film, field, "left blank, there is no code for " + Quoted(TextOf(bytes)));
  }
  if (is_coded && !code && fits) Tell(film, field, Quoted(TextOf(bytes)) + " is no code of the program");
  Store(film, field, code ? *code : bytes);
}

void FilmMaker::SetStars(ReadFilm& film, std::string_view utf8) {
  const std::string bytes = Bytes(film, FilmField::Star1, utf8);
  std::string_view rest = bytes;
  const char separator = rest.find(';') != std::string_view::npos   ? ';'
                         : rest.find('|') != std::string_view::npos ? '|'
                                                                    : ',';
  int star = 0, left = 0;
  while (!rest.empty()) {
    const std::size_t end = rest.find(separator);
    const std::string_view name = StarName(rest.substr(0, end));
    if (!name.empty() && star < Stars) {
      Store(film, FilmField(static_cast<int>(FilmField::Star1) + star++), name);
    } else if (!name.empty()) {
      ++left;
    }
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  if (left > 0) Tell(film, FilmField::Star6, "more stars than six: " + std::to_string(left) + " are left out");
}

}  // namespace exchange
