// A film in the master file: 32 texts of fixed width and a line end, 649 bytes.
#pragma once

#include <array>
#include <cstring>
#include <string>
#include <string_view>

namespace store {

// clang-format off
enum class FilmField {
  Title, Director, Star1, Star2, Star3, Star4, Star5, Star6, Label, Format, NumReel, Genre, Time, Year, CassNo, Letter, CLV1, Color1,
  Producer, Cinematographer, Written, Music, Choreography, SetDirection, Costume, Sound, Awards, Rating, Package, Purchase, Cost,
  Ratings, Tail,
};

// Offset in bytes from 0, width in bytes.
struct FilmFieldRow {
  FilmField Field;
  std::string_view Name;
  int Offset;
  int Width;
};

inline constexpr std::array<FilmFieldRow, 33> FilmFields = {{
  { FilmField::Title,           "Title",             0, 40 },
  { FilmField::Director,        "Director",         40, 30 },
  { FilmField::Star1,           "Star1",            70, 30 },
  { FilmField::Star2,           "Star2",           100, 30 },
  { FilmField::Star3,           "Star3",           130, 30 },
  { FilmField::Star4,           "Star4",           160, 30 },
  { FilmField::Star5,           "Star5",           190, 30 },
  { FilmField::Star6,           "Star6",           220, 30 },
  { FilmField::Label,           "Label",           250, 15 },
  { FilmField::Format,          "Format",          265,  1 },
  { FilmField::NumReel,         "NumReel",         266,  1 },
  { FilmField::Genre,           "Genre",           267,  2 },
  { FilmField::Time,            "Time",            269,  3 },
  { FilmField::Year,            "Year",            272,  4 },
  { FilmField::CassNo,          "CassNo",          276,  5 },
  { FilmField::Letter,          "Letter",          281,  1 },
  { FilmField::CLV1,            "CLV1",            282,  3 },
  { FilmField::Color1,          "Color1",          285,  6 },
  { FilmField::Producer,        "Producer",        291, 30 },
  { FilmField::Cinematographer, "Cinematographer", 321, 30 },
  { FilmField::Written,         "Written",         351, 50 },
  { FilmField::Music,           "Music",           401, 30 },
  { FilmField::Choreography,    "Choreography",    431, 30 },
  { FilmField::SetDirection,    "SetDirection",    461, 30 },
  { FilmField::Costume,         "Costume",         491, 30 },
  { FilmField::Sound,           "Sound",           521, 15 },
  { FilmField::Awards,          "Awards",          536, 60 },
  { FilmField::Rating,          "Rating",          596,  5 },
  { FilmField::Package,         "Package",         601, 15 },
  { FilmField::Purchase,        "Purchase",        616,  8 },
  { FilmField::Cost,            "Cost",            624,  8 },
  { FilmField::Ratings,         "Ratings",         632, 15 },
  { FilmField::Tail,            "Tail",            647,  2 },
}};
// clang-format on

inline constexpr int RecordLength = 649;

static_assert(
    [] {
      int offset = 0;
      for (std::size_t row = 0; row < FilmFields.size(); ++row) {
        if (FilmFields[row].Field != FilmField(row) || FilmFields[row].Offset != offset) return false;
        offset += FilmFields[row].Width;
      }
      return offset == RecordLength;
    }(),
    "the fields are in order, without gaps, and fill the record");

constexpr const FilmFieldRow& RowOf(FilmField field) { return FilmFields[static_cast<std::size_t>(field)]; }

struct FilmRecord {
  std::array<char, RecordLength> Bytes;

  FilmRecord() { Clear(); }
  // All blanks, the tail too.
  void Clear() { Bytes.fill(' '); }

  // The whole field, padding included.
  std::string_view Get(FilmField field) const {
    return {Bytes.data() + RowOf(field).Offset, static_cast<std::size_t>(RowOf(field).Width)};
  }
  // Cuts the text at the field's width or pads it with blanks; text may point into this record.
  void Set(FilmField field, std::string_view text) {
    auto width = static_cast<std::size_t>(RowOf(field).Width);
    char* target = Bytes.data() + RowOf(field).Offset;
    std::size_t length = text.size() < width ? text.size() : width;
    if (length > 0) std::memmove(target, text.data(), length);
    std::memset(target + length, ' ', width - length);
  }
};

static_assert(sizeof(FilmRecord) == RecordLength);

}  // namespace store
