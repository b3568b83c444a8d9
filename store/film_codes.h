// The coded values of a film: what the record keeps and what the screen shows.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace store {

struct CodeRow {
  std::string_view Code;
  std::string_view Word;
};

// clang-format off
inline constexpr std::string_view FormatLaser = "L";
inline constexpr std::string_view FormatVHS   = "V";
inline constexpr std::string_view FormatDVD   = "D";

inline constexpr std::string_view LaserWord   = "Laser";
inline constexpr std::string_view VHSWord     = "VHS";
inline constexpr std::string_view DVDWord     = "DVD";
inline constexpr std::array<CodeRow, 3> Formats = {{ { FormatLaser, LaserWord }, { FormatVHS, VHSWord }, { FormatDVD, DVDWord } }};

inline constexpr std::string_view AspectWide = "W";
inline constexpr std::array<CodeRow, 3> Aspects = {{ { AspectWide, "Wide Screen" }, { "P", "Pan & Scan" }, { "T", "TV 1.33:1" } }};

// Disc modes and colours are stored as the words that the screen shows.
inline constexpr std::array<std::string_view, 2> DiscModes = { "CLV", "CAV" };
inline constexpr std::array<std::string_view, 2> ColourWords = { "Color", "B & W" };

// ListItem: the row of the pick list. It differs from the name at MU, and the rows are not alphabetical, on purpose.
struct GenreRow {
  std::string_view Code;
  std::string_view Name;
  std::string_view ListItem;
};
inline constexpr std::array<GenreRow, 20> Genres = {{
  { "AA", "Action Adventure", "AA = Action Adventure" },
  { "AD", "Adult",            "AD = Adult" },
  { "AN", "Animation",        "AN = Animation" },
  { "CH", "Children",         "CH = Children" },
  { "CL", "Classic",          "CL = Classic" },
  { "CO", "Comedy",           "CO = Comedy" },
  { "DO", "Documentary",      "DO = Documentary" },
  { "DR", "Drama",            "DR = Drama" },
  { "FA", "Fantasy",          "FA = Fantasy" },
  { "FO", "Foreign",          "FO = Foreign" },
  { "FM", "Family",           "FM = Family" },
  { "HO", "Horror",           "HO = Horror" },
  { "IN", "Instructional",    "IN = Instructional" },
  { "MU", "Musicals",         "MU = Musical" },
  { "MS", "Mystery Suspense", "MS = Mystery Suspense" },
  { "MY", "Mystery",          "MY = Mystery" },
  { "NA", "Nature",           "NA = Nature" },
  { "SF", "Science Fiction",  "SF = Science Fiction" },
  { "SI", "Special Interest", "SI = Special Interest" },
  { "WE", "Western",          "WE = Western" },
}};

inline constexpr std::array<std::string_view, 13> RatingCodes = {
  "G", "PG", "PG-13", "R", "NC-17", "XXX", "TV-Y", "TV-Y7", "TV-G", "TV-PG", "TV-14", "TV-MA", "NR",
};
// clang-format on

inline constexpr std::string_view TVRatingStart = "TV";

// The word of a code, the code of a word, the row of a genre; nothing where the table has none.
template <std::size_t Rows>
constexpr std::optional<std::string_view> WordOf(const std::array<CodeRow, Rows>& table, std::string_view code) {
  for (const CodeRow& row : table) {
    if (row.Code == code) return row.Word;
  }
  return std::nullopt;
}

template <std::size_t Rows>
constexpr std::optional<std::string_view> CodeOf(const std::array<CodeRow, Rows>& table, std::string_view word) {
  for (const CodeRow& row : table) {
    if (row.Word == word) return row.Code;
  }
  return std::nullopt;
}

constexpr bool IsOneOf(const std::array<std::string_view, 2>& words, std::string_view text) {
  return text == words[0] || text == words[1];
}

constexpr const GenreRow* GenreOf(std::string_view code) {
  const auto* row =
      std::find_if(Genres.begin(), Genres.end(), [&](const GenreRow& genre) { return genre.Code == code; });
  return row == Genres.end() ? nullptr : row;
}

}  // namespace store
