// The words of the program first, then those that other catalogues commonly use.
#include "exchange/coded_words.h"

#include <algorithm>

#include "exchange/film_text.h"
#include "runtime/text.h"
#include "store/film_codes.h"

namespace exchange {
namespace {

using store::FilmField;

struct Word {
  FilmField Field;
  std::string_view Text;  // capitals
  std::string_view Code;
};
// clang-format off
constexpr Word Words[] = {
  { FilmField::Format, "LASERDISC", "L" },        { FilmField::Format, "LASER DISC", "L" },     { FilmField::Format, "LD", "L" },
  { FilmField::Format, "TAPE", "V" },             { FilmField::Format, "VIDEO", "V" },          { FilmField::Format, "CASSETTE", "V" },
  { FilmField::Format, "VHS TAPE", "V" },         { FilmField::Format, "VIDEO CASSETTE", "V" }, { FilmField::Format, "S-VHS", "V" },
  { FilmField::Format, "DVD-VIDEO", "D" },        { FilmField::Format, "DVD VIDEO", "D" },
  { FilmField::Letter, "WIDESCREEN", "W" },       { FilmField::Letter, "WIDE", "W" },           { FilmField::Letter, "LETTERBOX", "W" },
  { FilmField::Letter, "LETTERBOXED", "W" },      { FilmField::Letter, "16:9", "W" },           { FilmField::Letter, "1.85:1", "W" },
  { FilmField::Letter, "2.35:1", "W" },           { FilmField::Letter, "PAN AND SCAN", "P" },   { FilmField::Letter, "FULL SCREEN", "T" },
  { FilmField::Letter, "FULLSCREEN", "T" },       { FilmField::Letter, "FULL FRAME", "T" },     { FilmField::Letter, "4:3", "T" },
  { FilmField::Letter, "1.33:1", "T" },
  { FilmField::Color1, "COLOUR", "Color" },       { FilmField::Color1, "BLACK & WHITE", "B & W" },
  { FilmField::Color1, "B&W", "B & W" },          { FilmField::Color1, "BLACK AND WHITE", "B & W" },
  { FilmField::Color1, "BW", "B & W" },           { FilmField::Color1, "B/W", "B & W" },
  { FilmField::Rating, "UNRATED", "NR" },         { FilmField::Rating, "NOT RATED", "NR" },     { FilmField::Rating, "U", "G" },
  { FilmField::Genre, "ACTION", "AA" },           { FilmField::Genre, "ADVENTURE", "AA" },      { FilmField::Genre, "ACTION/ADVENTURE", "AA" },
  { FilmField::Genre, "ACTION & ADVENTURE", "AA" }, { FilmField::Genre, "ANIMATED", "AN" },     { FilmField::Genre, "ANIME", "AN" },
  { FilmField::Genre, "CARTOON", "AN" },          { FilmField::Genre, "KIDS", "CH" },           { FilmField::Genre, "CHILDREN'S", "CH" },
  { FilmField::Genre, "CLASSICS", "CL" },         { FilmField::Genre, "COMEDIES", "CO" },       { FilmField::Genre, "DOCUMENTARIES", "DO" },
  { FilmField::Genre, "DRAMAS", "DR" },           { FilmField::Genre, "MUSICAL", "MU" },        { FilmField::Genre, "MUSIC", "MU" },
  { FilmField::Genre, "THRILLER", "MS" },         { FilmField::Genre, "SUSPENSE", "MS" },       { FilmField::Genre, "MYSTERY/SUSPENSE", "MS" },
  { FilmField::Genre, "SUSPENSE/THRILLER", "MS" }, { FilmField::Genre, "SCI-FI", "SF" },        { FilmField::Genre, "SCIFI", "SF" },
  { FilmField::Genre, "SCIENCE-FICTION", "SF" },  { FilmField::Genre, "SCI FI", "SF" },         { FilmField::Genre, "WESTERNS", "WE" },
  { FilmField::Genre, "FOREIGN LANGUAGE", "FO" },
};
// clang-format on

template <typename Table, typename Text, typename Code>
std::optional<std::string> InTable(const Table& table, std::string_view capitals, Text text, Code code) {
  for (const auto& row : table) {
    if (runtime::Upper(text(row)) == capitals) return std::string(code(row));
  }
  return std::nullopt;
}

// Of the tables of the program: a code, or its word.
std::optional<std::string> OwnCode(FilmField field, std::string_view capitals) {
  auto codes = [&](const auto& table) {
    auto code = [](const auto& row) { return row.Code; };
    auto found = InTable(table, capitals, code, code);
    return found ? found
                 : InTable(
                       table, capitals, [](const auto& row) { return row.Word; }, code);
  };
  auto words = [&](const auto& table) {
    auto word = [](std::string_view row) { return row; };
    return InTable(table, capitals, word, word);
  };
  auto genre_code = [](const store::GenreRow& row) { return row.Code; };
  switch (field) {
    case FilmField::Format:
      return codes(store::Formats);
    case FilmField::Letter:
      return codes(store::Aspects);
    case FilmField::CLV1:
      return words(store::DiscModes);
    case FilmField::Color1:
      return words(store::ColourWords);
    case FilmField::Rating:
      return words(store::RatingCodes);
    case FilmField::Genre:
      if (auto found = InTable(store::Genres, capitals, genre_code, genre_code)) return found;
      if (auto found = InTable(
              store::Genres, capitals, [](const auto& row) { return row.Name; }, genre_code))
        return found;
      return InTable(
          store::Genres, capitals, [](const auto& row) { return row.ListItem; }, genre_code);
    default:
      return std::nullopt;
  }
}

std::optional<std::string> CodeOfOne(FilmField field, std::string_view text) {
  const std::string capitals = runtime::Upper(runtime::Trim(text));
  if (auto own = OwnCode(field, capitals)) return own;
  for (const Word& word : Words) {
    if (word.Field == field && word.Text == capitals) return std::string(word.Code);
  }
  return std::nullopt;
}

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

// The run of digits at the front, taken from the text; -1 if there is none or it is long.
int TakeNumber(std::string_view& text) {
  std::size_t length = 0;
  int number = 0;
  for (; length < text.size() && IsDigit(text[length]); ++length) {
    if (length < 6) number = number * 10 + (text[length] - '0');
  }
  text.remove_prefix(length);
  return length == 0 || length > 6 ? -1 : number;
}

// "104 min", "1h 44m", "1:44", "PT1H44M", "01:44:00".
std::optional<std::string> Minutes(std::string_view text) {
  while (!text.empty() && !IsDigit(text[0])) text.remove_prefix(1);
  int first = TakeNumber(text);
  text = runtime::TrimFront(text);
  if (first < 0) return std::nullopt;
  if (!text.empty() && std::string_view("hH:").find(text[0]) != std::string_view::npos) {
    while (!text.empty() && !IsDigit(text[0])) text.remove_prefix(1);
    first = first * 60 + std::max(TakeNumber(text), 0);
  }
  return first < 1000 ? std::optional(std::to_string(first)) : std::nullopt;
}

// Four digits that stand alone.
std::optional<std::string> Year(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = at;
    while (end < text.size() && IsDigit(text[end])) ++end;
    if (end - at == 4) return std::string(text.substr(at, 4));
    at = end + 1;
  }
  return std::nullopt;
}

// "2004-12-25", with or without a time, as "12/25/04".
std::optional<std::string> ShortDate(std::string_view text) {
  const std::string_view form = "0000-00-00";
  if (text.size() < form.size()) return std::nullopt;
  for (std::size_t at = 0; at < form.size(); ++at) {
    if (form[at] == '-' ? text[at] != '-' : !IsDigit(text[at])) return std::nullopt;
  }
  return std::string(text.substr(5, 2)).append("/").append(text.substr(8, 2)).append("/").append(text.substr(2, 2));
}

// Without the letters of a currency, blanks and commas between digits.
std::optional<std::string> Price(std::string_view text) {
  std::string price;
  for (char byte : text) {
    if (IsDigit(byte) || byte == '.' || static_cast<unsigned char>(byte) >= 0x80 || byte == '$') price += byte;
  }
  return std::any_of(price.begin(), price.end(), IsDigit) ? std::optional(price) : std::nullopt;
}

}  // namespace

void AppendWord(const store::FilmRecord& film, FilmField field, std::string& utf8) {
  const std::string_view bytes = film.Get(field);
  std::optional<std::string_view> word;
  if (field == FilmField::Format) word = store::WordOf(store::Formats, bytes);
  if (field == FilmField::Letter) word = store::WordOf(store::Aspects, bytes);
  if (field == FilmField::Genre && store::GenreOf(bytes)) word = store::GenreOf(bytes)->Name;
  if (word) {
    utf8.append(*word);
  } else {
    AppendField(film, field, utf8);
  }
}

bool HoldsCode(FilmField field) {
  return field == FilmField::Format || field == FilmField::Letter || field == FilmField::Genre;
}

std::optional<std::string> CodeOfWord(FilmField field, std::string_view text) {
  switch (field) {
    case FilmField::Time:
      return Minutes(text);
    case FilmField::Year:
      return Year(text);
    case FilmField::Purchase:
      return ShortDate(text);
    case FilmField::Cost:
      return Price(text);
    case FilmField::NumReel: {
      const int number = TakeNumber(text);
      return number >= 0 && number < 10 ? std::optional(std::to_string(number)) : std::nullopt;
    }
    case FilmField::Rating:
      if (runtime::Upper(text).starts_with("RATED ")) text.remove_prefix(6);
      return CodeOfOne(field, text.substr(0, text.find(" (")));
    default:
      break;
  }
  if (auto whole = CodeOfOne(field, text)) return whole;
  // The first of a list that is known.
  while (!text.empty()) {
    const std::size_t end = text.find_first_of(";,|");
    if (auto one = CodeOfOne(field, text.substr(0, end))) return one;
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return std::nullopt;
}

}  // namespace exchange
