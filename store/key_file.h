// The key files: one for all films and one for each format, each with a count file, and the layout of a key.
// Every table that names one of these files refers to the constants below and keeps an order of its own.
#pragma once

#include <string_view>

#include "store/film_codes.h"
#include "store/film_record.h"

namespace store {

// A key in bytes: the film's title, the number of its record, CR and LF.
inline constexpr int KeyTitleWidth = 40;
inline constexpr int KeyNumberWidth = 7;
inline constexpr int KeyTailWidth = 2;
inline constexpr int KeyNumberOffset = KeyTitleWidth;
inline constexpr int KeyLength = KeyTitleWidth + KeyNumberWidth + KeyTailWidth;

static_assert(KeyLength == 49);
static_assert(KeyTitleWidth == RowOf(FilmField::Title).Width, "the sort copies the title into the key");

inline constexpr std::string_view AllFormats = "";

struct KeyFile {
  std::string_view Name;
  std::string_view CountFile;  // the number of keys, as text
  std::string_view Format;     // code of the films in it, or AllFormats
};

// clang-format off
inline constexpr KeyFile TitleKeys = { "Titlepra.Dat", "Titlepra", AllFormats };
inline constexpr KeyFile DVDKeys   = { "DVDpra.Dat",   "DVDpra",   FormatDVD };
inline constexpr KeyFile LaserKeys = { "Laserpra.Dat", "Laserpra", FormatLaser };
inline constexpr KeyFile VHSKeys   = { "VHSpra.Dat",   "VHSpra",   FormatVHS };
// clang-format on

}  // namespace store
