// The fields of both pages on entry: when a field refuses, its message title, when it is left-aligned.
#pragma once

#include <string_view>

#include "screen/controls.h"

namespace screen {

enum class Guard { None, InView, InViewNotNew };  // EditMode 0; EditMode 0 and NewMode 0
enum class LeftWhen { Never, Edit, New, EditOrNew };

struct EntryField {
  forms::TextBox PageControls::*Box;
  Guard Refuse;
  std::string_view Title;
  LeftWhen Left;
};

// clang-format off
inline constexpr EntryField EntryFields[] = {
  { &PageControls::txtTitle,           Guard::None,         "Title",              LeftWhen::Edit },  // holds the focus at the start
  { &PageControls::txtDirector,        Guard::InView,       "Director",           LeftWhen::Edit },
  { &PageControls::txtStar1,           Guard::InView,       "Star 1",             LeftWhen::Edit },
  { &PageControls::txtStar2,           Guard::InView,       "Star 2",             LeftWhen::Edit },
  { &PageControls::txtStar3,           Guard::InView,       "Star 3",             LeftWhen::Edit },
  { &PageControls::txtStar4,           Guard::InView,       "Star 4",             LeftWhen::Edit },
  { &PageControls::txtStar5,           Guard::InView,       "Star 5",             LeftWhen::Edit },
  { &PageControls::txtStar6,           Guard::InView,       "Star 6",             LeftWhen::Edit },
  { &PageControls::txtLabel,           Guard::InView,       "Label",              LeftWhen::EditOrNew },
  { &PageControls::txtFormat,          Guard::InViewNotNew, "Format",             LeftWhen::EditOrNew },
  { &PageControls::txtNumReel,         Guard::InView,       "No. Disc Tape Etc.", LeftWhen::New },
  { &PageControls::txtGenre,           Guard::InViewNotNew, "Genre",              LeftWhen::Never },
  { &PageControls::txtGenreList,       Guard::InView,       "Genre List",         LeftWhen::Never },
  { &PageControls::txtTime,            Guard::InViewNotNew, "Time",               LeftWhen::EditOrNew },
  { &PageControls::txtYear,            Guard::InViewNotNew, "Year",               LeftWhen::EditOrNew },
  { &PageControls::txtCassNo,          Guard::InViewNotNew, "Casette No.",        LeftWhen::Never },
  { &PageControls::txtLetter,          Guard::InViewNotNew, "Aspect",             LeftWhen::Never },
  { &PageControls::txtCLV1,            Guard::InViewNotNew, "CAV/CLV",            LeftWhen::Never },
  { &PageControls::txtColor1,          Guard::InViewNotNew, "Color/B&W",          LeftWhen::New },
  { &PageControls::txtProducer,        Guard::InViewNotNew, "Producer",           LeftWhen::EditOrNew },
  { &PageControls::txtCinematographer, Guard::InViewNotNew, "Cinematographer",    LeftWhen::EditOrNew },
  { &PageControls::txtWritten,         Guard::InViewNotNew, "Writers",            LeftWhen::EditOrNew },
  { &PageControls::txtMusic,           Guard::InViewNotNew, "Music Direction",    LeftWhen::EditOrNew },
  { &PageControls::txtChoreography,    Guard::InViewNotNew, "Choreography",       LeftWhen::EditOrNew },
  { &PageControls::txtSetDirection,    Guard::InViewNotNew, "Set Direction",      LeftWhen::EditOrNew },
  { &PageControls::txtCostume,         Guard::InViewNotNew, "Costumer",           LeftWhen::EditOrNew },
  { &PageControls::txtSound,           Guard::InViewNotNew, "Sound",              LeftWhen::EditOrNew },
  { &PageControls::txtRating,          Guard::InView,       "MPAA Rating",        LeftWhen::Never },
  { &PageControls::txtPackage,         Guard::InView,       "Packaging",          LeftWhen::New },
  { &PageControls::txtAwards,          Guard::InViewNotNew, "Awards / Notes",     LeftWhen::EditOrNew },
  { &PageControls::txtPurchase,        Guard::InViewNotNew, "Purchase Date",      LeftWhen::EditOrNew },
  { &PageControls::txtCost,            Guard::InViewNotNew, "Cost",               LeftWhen::EditOrNew },
  { &PageControls::txtRatings,         Guard::InViewNotNew, "Your Rating",        LeftWhen::EditOrNew },
};
// clang-format on

// The message line on page 2 of a new film, by the two settings.
inline constexpr std::string_view AutoSaveNote =
    "When the last text box is filled in and the tab key pressed,  this record will be auto saved and sorted.";
inline constexpr std::string_view AutoSaveOffNote =
    "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to manually save "
    "and sort this record.";

constexpr const EntryField& EntryOf(forms::TextBox PageControls::*box) {
  for (const EntryField& field : EntryFields) {
    if (field.Box == box) return field;
  }
  return EntryFields[0];
}

}  // namespace screen
