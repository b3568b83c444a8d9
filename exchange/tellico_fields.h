// The fields of a Tellico collection of videos that films are exported to: one for each field of the record, under
// Tellico's own name where it has one.
#pragma once

#include <array>
#include <string_view>

#include "store/film_record.h"

namespace exchange {

enum class TellicoType { Line = 1, Choice = 3, Number = 6 };

struct TellicoField {
  store::FilmField Field;
  std::string_view Name;  // "": a row of the table "cast"
  std::string_view Title;
  std::string_view Category;
  TellicoType Type = TellicoType::Line;
};

inline constexpr std::string_view TellicoRecord = "record";
inline constexpr std::string_view TellicoTail = "line-end";
inline constexpr std::string_view TellicoCast = "cast";

// clang-format off
inline constexpr std::string_view GeneralPage = "General";
inline constexpr std::string_view PeoplePage = "People";
inline constexpr std::string_view FeaturesPage = "Features";
inline constexpr std::string_view PersonalPage = "Personal";

// In the order of the record.
inline constexpr std::array<TellicoField, store::FilmFields.size()> TellicoFields = {{
  { store::FilmField::Title,           "title",           "Title",                       GeneralPage },
  { store::FilmField::Director,        "director",        "Director",                    PeoplePage },
  { store::FilmField::Star1,           "",                "",                            PeoplePage },
  { store::FilmField::Star2,           "",                "",                            PeoplePage },
  { store::FilmField::Star3,           "",                "",                            PeoplePage },
  { store::FilmField::Star4,           "",                "",                            PeoplePage },
  { store::FilmField::Star5,           "",                "",                            PeoplePage },
  { store::FilmField::Star6,           "",                "",                            PeoplePage },
  { store::FilmField::Label,           "label",           "Label",                       GeneralPage },
  { store::FilmField::Format,          "medium",          "Format",                      GeneralPage, TellicoType::Choice },
  { store::FilmField::NumReel,         "discs",           "Discs or tapes",              GeneralPage },
  { store::FilmField::Genre,           "genre",           "Genre",                       GeneralPage, TellicoType::Choice },
  { store::FilmField::Time,            "running-time",    "Running time",                FeaturesPage },
  { store::FilmField::Year,            "year",            "Year",                        GeneralPage },
  { store::FilmField::CassNo,          "cassette",        "Cassette no.",                PersonalPage },
  { store::FilmField::Letter,          "aspect-ratio",    "Aspect",                      FeaturesPage, TellicoType::Choice },
  { store::FilmField::CLV1,            "disc-mode",       "CAV / CLV",                   FeaturesPage },
  { store::FilmField::Color1,          "color",           "Color",                       FeaturesPage, TellicoType::Choice },
  { store::FilmField::Producer,        "producer",        "Producer",                    PeoplePage },
  { store::FilmField::Cinematographer, "cinematographer", "Cinematographer",             PeoplePage },
  { store::FilmField::Written,         "writer",          "Writer",                      PeoplePage },
  { store::FilmField::Music,           "composer",        "Composer",                    PeoplePage },
  { store::FilmField::Choreography,    "choreography",    "Choreography",                PeoplePage },
  { store::FilmField::SetDirection,    "set-direction",   "Art director, set direction", PeoplePage },
  { store::FilmField::Costume,         "costume",         "Costume designer",            PeoplePage },
  { store::FilmField::Sound,           "audio-track",     "Sound",                       FeaturesPage },
  { store::FilmField::Awards,          "awards",          "Awards and notes",            GeneralPage },
  { store::FilmField::Rating,          "certification",   "MPAA rating",                 GeneralPage, TellicoType::Choice },
  { store::FilmField::Package,         "packaging",       "Packaging",                   FeaturesPage },
  { store::FilmField::Purchase,        "pur_date",        "Purchase date",               PersonalPage },
  { store::FilmField::Cost,            "pur_price",       "Purchase price",              PersonalPage },
  { store::FilmField::Ratings,         "own-rating",      "Your rating",                 PersonalPage },
  { store::FilmField::Tail,            TellicoTail,       "Line end",                    PersonalPage },
}};
// clang-format on

}  // namespace exchange
