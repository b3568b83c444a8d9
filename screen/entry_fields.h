// The fields of both pages on entry: when one refuses in view, under which title, and when its text is left-aligned for
// typing.
#pragma once

#include <string_view>

#include "screen/controls.h"

namespace screen {

enum class Guard { None, InView, InViewNotNew };  // EditMode 0; EditMode 0 and NewMode 0
enum class LeftWhen { Never, Edit, New, EditOrNew };

struct EntryField {
  forms::TextBox Page1Controls::*Box;
  Guard Refuse;
  std::string_view Title;
  LeftWhen Left;
};

// clang-format off
inline constexpr EntryField EntryFields[] = {
  { &Page1Controls::txtTitle,           Guard::None,         "Title",              LeftWhen::Edit },  // holds the focus at the start
  { &Page1Controls::txtDirector,        Guard::InView,       "Director",           LeftWhen::Edit },
  { &Page1Controls::txtStar1,           Guard::InView,       "Star 1",             LeftWhen::Edit },
  { &Page1Controls::txtStar2,           Guard::InView,       "Star 2",             LeftWhen::Edit },
  { &Page1Controls::txtStar3,           Guard::InView,       "Star 3",             LeftWhen::Edit },
  { &Page1Controls::txtStar4,           Guard::InView,       "Star 4",             LeftWhen::Edit },
  { &Page1Controls::txtStar5,           Guard::InView,       "Star 5",             LeftWhen::Edit },
  { &Page1Controls::txtStar6,           Guard::InView,       "Star 6",             LeftWhen::Edit },
  { &Page1Controls::txtLabel,           Guard::InView,       "Label",              LeftWhen::EditOrNew },
  { &Page1Controls::txtFormat,          Guard::InViewNotNew, "Format",             LeftWhen::EditOrNew },
  { &Page1Controls::txtNumReel,         Guard::InView,       "No. Disc Tape Etc.", LeftWhen::New },
  { &Page1Controls::txtGenre,           Guard::InViewNotNew, "Genre",              LeftWhen::Never },
  { &Page1Controls::txtGenreList,       Guard::InView,       "Genre List",         LeftWhen::Never },
  { &Page1Controls::txtTime,            Guard::InViewNotNew, "Time",               LeftWhen::EditOrNew },
  { &Page1Controls::txtYear,            Guard::InViewNotNew, "Year",               LeftWhen::EditOrNew },
  { &Page1Controls::txtCassNo,          Guard::InViewNotNew, "Casette No.",        LeftWhen::Never },
  { &Page1Controls::txtLetter,          Guard::InViewNotNew, "Aspect",             LeftWhen::Never },
  { &Page1Controls::txtCLV1,            Guard::InViewNotNew, "CAV/CLV",            LeftWhen::Never },
  { &Page1Controls::txtColor1,          Guard::InViewNotNew, "Color/B&W",          LeftWhen::New },
  { &Page1Controls::txtProducer,        Guard::InViewNotNew, "Producer",           LeftWhen::EditOrNew },
  { &Page1Controls::txtCinematographer, Guard::InViewNotNew, "Cinematographer",    LeftWhen::EditOrNew },
  { &Page1Controls::txtWritten,         Guard::InViewNotNew, "Writers",            LeftWhen::EditOrNew },
  { &Page1Controls::txtMusic,           Guard::InViewNotNew, "Music Direction",    LeftWhen::EditOrNew },
  { &Page1Controls::txtChoreography,    Guard::InViewNotNew, "Choreography",       LeftWhen::EditOrNew },
  { &Page1Controls::txtSetDirection,    Guard::InViewNotNew, "Set Direction",      LeftWhen::EditOrNew },
  { &Page1Controls::txtCostume,         Guard::InViewNotNew, "Costumer",           LeftWhen::EditOrNew },
  { &Page1Controls::txtSound,           Guard::InViewNotNew, "Sound",              LeftWhen::EditOrNew },
  { &Page1Controls::txtRating,          Guard::InView,       "MPAA Rating",        LeftWhen::Never },
  { &Page1Controls::txtPackage,         Guard::InView,       "Packaging",          LeftWhen::New },
  { &Page1Controls::txtAwards,          Guard::InViewNotNew, "Awards / Notes",     LeftWhen::EditOrNew },
  { &Page1Controls::txtPurchase,        Guard::InViewNotNew, "Purchase Date",      LeftWhen::EditOrNew },
  { &Page1Controls::txtCost,            Guard::InViewNotNew, "Cost",               LeftWhen::EditOrNew },
  { &Page1Controls::txtRatings,         Guard::InViewNotNew, "Your Rating",        LeftWhen::EditOrNew },
};
// clang-format on

// What the message line says about the end of a new film, by the two settings.
inline constexpr std::string_view AutoSaveNote =
    "When the last text box is filled in and the tab key pressed,  this record will be auto saved and sorted.";
inline constexpr std::string_view AutoSaveOffNote =
    "AUTO SAVE IS OFF!  When the last text box is filled in and the tab key pressed, you will have to manually save "
    "and sort this record.";

constexpr const EntryField& EntryOf(forms::TextBox Page1Controls::*box) {
  for (const EntryField& field : EntryFields) {
    if (field.Box == box) return field;
  }
  return EntryFields[0];
}

}  // namespace screen
