// Which box shows which field of the record, and which tag stands under it, once.
#pragma once

#include <cstddef>
#include <iterator>

#include "screen/controls.h"
#include "store/film_record.h"

namespace screen {

using store::FilmField;

struct RecordBox {
  FilmField Field;
  forms::TextBox Page1Controls::*Box;
};

// clang-format off
// In the order of the record.
inline constexpr RecordBox RecordBoxes[] = {
  { FilmField::Title,            &Page1Controls::txtTitle },
  { FilmField::Director,         &Page1Controls::txtDirector },
  { FilmField::Star1,            &Page1Controls::txtStar1 },
  { FilmField::Star2,            &Page1Controls::txtStar2 },
  { FilmField::Star3,            &Page1Controls::txtStar3 },
  { FilmField::Star4,            &Page1Controls::txtStar4 },
  { FilmField::Star5,            &Page1Controls::txtStar5 },
  { FilmField::Star6,            &Page1Controls::txtStar6 },
  { FilmField::Label,            &Page1Controls::txtLabel },
  { FilmField::Format,           &Page1Controls::txtFormat },
  { FilmField::NumReel,          &Page1Controls::txtNumReel },
  { FilmField::Genre,            &Page1Controls::txtGenre },
  { FilmField::Time,             &Page1Controls::txtTime },
  { FilmField::Year,             &Page1Controls::txtYear },
  { FilmField::CassNo,           &Page1Controls::txtCassNo },
  { FilmField::Letter,           &Page1Controls::txtLetter },
  { FilmField::CLV1,             &Page1Controls::txtCLV1 },
  { FilmField::Color1,           &Page1Controls::txtColor1 },
  { FilmField::Producer,         &Page1Controls::txtProducer },
  { FilmField::Cinematographer,  &Page1Controls::txtCinematographer },
  { FilmField::Written,          &Page1Controls::txtWritten },
  { FilmField::Music,            &Page1Controls::txtMusic },
  { FilmField::Choreography,     &Page1Controls::txtChoreography },
  { FilmField::SetDirection,     &Page1Controls::txtSetDirection },
  { FilmField::Costume,          &Page1Controls::txtCostume },
  { FilmField::Sound,            &Page1Controls::txtSound },
  { FilmField::Awards,           &Page1Controls::txtAwards },
  { FilmField::Rating,           &Page1Controls::txtRating },
  { FilmField::Package,          &Page1Controls::txtPackage },
  { FilmField::Purchase,         &Page1Controls::txtPurchase },
  { FilmField::Cost,             &Page1Controls::txtCost },
  { FilmField::Ratings,          &Page1Controls::txtRatings },
};

// In the order in which a film is blanked by ShowRecord, New, Reset and Delete: the colour before the disc mode, the rating before the awards.
inline constexpr FilmField ClearingOrder[] = {
  FilmField::Title,    FilmField::Director, FilmField::Star1,  FilmField::Star2,  FilmField::Star3,  FilmField::Star4, FilmField::Star5,
  FilmField::Star6,    FilmField::Label,    FilmField::Format, FilmField::NumReel, FilmField::Genre, FilmField::Time,  FilmField::Year,
  FilmField::CassNo,   FilmField::Letter,   FilmField::Color1, FilmField::CLV1,   FilmField::Producer, FilmField::Cinematographer,
  FilmField::Written,  FilmField::Music,    FilmField::Choreography, FilmField::SetDirection, FilmField::Costume, FilmField::Sound,
  FilmField::Rating,   FilmField::Awards,   FilmField::Package, FilmField::Purchase, FilmField::Cost, FilmField::Ratings,
};

// A box and its tag: what the page switch shows and hides together.
struct PagePair {
  forms::TextBox Page1Controls::*Box;
  forms::Label Page1Controls::*Tag;
};

inline constexpr PagePair PageOne[] = {
  { &Page1Controls::txtTitle,           &Page1Controls::lblTitle },
  { &Page1Controls::txtDirector,        &Page1Controls::lblDirector },
  { &Page1Controls::txtStar1,           &Page1Controls::lblStar1 },
  { &Page1Controls::txtStar2,           &Page1Controls::lblStar2 },
  { &Page1Controls::txtStar3,           &Page1Controls::lblStar3 },
  { &Page1Controls::txtStar4,           &Page1Controls::lblStar4 },
  { &Page1Controls::txtStar5,           &Page1Controls::lblStar5 },
  { &Page1Controls::txtStar6,           &Page1Controls::lblStar6 },
  { &Page1Controls::txtLabel,           &Page1Controls::lblLabel },
  { &Page1Controls::txtFormat,          &Page1Controls::lblFormat },
  { &Page1Controls::txtNumReel,         &Page1Controls::lblNumReel },
  { &Page1Controls::txtGenre,           &Page1Controls::lblGenre },
  { &Page1Controls::txtGenreList,       &Page1Controls::lblGenreList1 },
  { &Page1Controls::txtTime,            &Page1Controls::lblTime },
  { &Page1Controls::txtYear,            &Page1Controls::lblYear },
  { &Page1Controls::txtCassNo,          &Page1Controls::lblCassNo },
  { &Page1Controls::txtLetter,          &Page1Controls::lblLetter },
  { &Page1Controls::txtCLV1,            &Page1Controls::lblCLV },
  { &Page1Controls::txtColor1,          &Page1Controls::lblColor1 },
};

inline constexpr PagePair PageTwo[] = {
  { &Page1Controls::txtProducer,        &Page1Controls::lblProducer },
  { &Page1Controls::txtCinematographer, &Page1Controls::lblCinematographer },
  { &Page1Controls::txtWritten,         &Page1Controls::lblWritten },
  { &Page1Controls::txtMusic,           &Page1Controls::lblMusic },
  { &Page1Controls::txtChoreography,    &Page1Controls::lblDance },
  { &Page1Controls::txtSetDirection,    &Page1Controls::lblSetDirection },
  { &Page1Controls::txtCostume,         &Page1Controls::lblCostume },
  { &Page1Controls::txtSound,           &Page1Controls::lblSound },
  { &Page1Controls::txtRating,          &Page1Controls::lblMPAA },
  { &Page1Controls::txtAwards,          &Page1Controls::lblAward },
  { &Page1Controls::txtPackage,         &Page1Controls::lblPackage },
  { &Page1Controls::txtPurchase,        &Page1Controls::lblPurchase },
  { &Page1Controls::txtCost,            &Page1Controls::lblCost },
  { &Page1Controls::txtRatings,         &Page1Controls::lblRates },
};
// The pairs of page 2 from Producer to Sound; the others hold ratings, notes and the collector's own data.
inline constexpr std::size_t CreditPairs = 8;
// clang-format on

static_assert(
    [] {
      for (std::size_t row = 0; row < std::size(RecordBoxes); ++row) {
        if (RecordBoxes[row].Field != FilmField(row)) return false;
      }
      return std::size(RecordBoxes) + 1 == store::FilmFields.size() &&
             std::size(ClearingOrder) == std::size(RecordBoxes);
    }(),
    "every field but the tail has its box, in the order of the record");

constexpr forms::TextBox Page1Controls::*BoxOf(FilmField field) {
  return RecordBoxes[static_cast<std::size_t>(field)].Box;
}

}  // namespace screen
