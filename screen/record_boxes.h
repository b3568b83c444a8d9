// Which box shows which field of the record and which tag is under it, each in one place.
#pragma once

#include <cstddef>
#include <iterator>

#include "screen/controls.h"
#include "store/film_record.h"

namespace screen {

using store::FilmField;

struct RecordBox {
  FilmField Field;
  forms::TextBox PageControls::*Box;
};

// clang-format off
// In the order of the record.
inline constexpr RecordBox RecordBoxes[] = {
  { FilmField::Title,            &PageControls::txtTitle },
  { FilmField::Director,         &PageControls::txtDirector },
  { FilmField::Star1,            &PageControls::txtStar1 },
  { FilmField::Star2,            &PageControls::txtStar2 },
  { FilmField::Star3,            &PageControls::txtStar3 },
  { FilmField::Star4,            &PageControls::txtStar4 },
  { FilmField::Star5,            &PageControls::txtStar5 },
  { FilmField::Star6,            &PageControls::txtStar6 },
  { FilmField::Label,            &PageControls::txtLabel },
  { FilmField::Format,           &PageControls::txtFormat },
  { FilmField::NumReel,          &PageControls::txtNumReel },
  { FilmField::Genre,            &PageControls::txtGenre },
  { FilmField::Time,             &PageControls::txtTime },
  { FilmField::Year,             &PageControls::txtYear },
  { FilmField::CassNo,           &PageControls::txtCassNo },
  { FilmField::Letter,           &PageControls::txtLetter },
  { FilmField::CLV1,             &PageControls::txtCLV1 },
  { FilmField::Color1,           &PageControls::txtColor1 },
  { FilmField::Producer,         &PageControls::txtProducer },
  { FilmField::Cinematographer,  &PageControls::txtCinematographer },
  { FilmField::Written,          &PageControls::txtWritten },
  { FilmField::Music,            &PageControls::txtMusic },
  { FilmField::Choreography,     &PageControls::txtChoreography },
  { FilmField::SetDirection,     &PageControls::txtSetDirection },
  { FilmField::Costume,          &PageControls::txtCostume },
  { FilmField::Sound,            &PageControls::txtSound },
  { FilmField::Awards,           &PageControls::txtAwards },
  { FilmField::Rating,           &PageControls::txtRating },
  { FilmField::Package,          &PageControls::txtPackage },
  { FilmField::Purchase,         &PageControls::txtPurchase },
  { FilmField::Cost,             &PageControls::txtCost },
  { FilmField::Ratings,          &PageControls::txtRatings },
};

// The order in which ShowRecord, New, Reset and Delete blank a film. The colour is before the disc mode: the rule of the disc mode may
// disable its box and so pass the focus to the colour box, whose list would then fill the colour again.
inline constexpr FilmField ClearingOrder[] = {
  FilmField::Title,    FilmField::Director, FilmField::Star1,  FilmField::Star2,  FilmField::Star3,  FilmField::Star4, FilmField::Star5,
  FilmField::Star6,    FilmField::Label,    FilmField::Format, FilmField::NumReel, FilmField::Genre, FilmField::Time,  FilmField::Year,
  FilmField::CassNo,   FilmField::Letter,   FilmField::Color1, FilmField::CLV1,   FilmField::Producer, FilmField::Cinematographer,
  FilmField::Written,  FilmField::Music,    FilmField::Choreography, FilmField::SetDirection, FilmField::Costume, FilmField::Sound,
  FilmField::Rating,   FilmField::Awards,   FilmField::Package, FilmField::Purchase, FilmField::Cost, FilmField::Ratings,
};

// A box and its tag: what the page switch shows and hides together.
struct PagePair {
  forms::TextBox PageControls::*Box;
  forms::Label PageControls::*Tag;
};

inline constexpr PagePair PageOne[] = {
  { &PageControls::txtTitle,           &PageControls::lblTitle },
  { &PageControls::txtDirector,        &PageControls::lblDirector },
  { &PageControls::txtStar1,           &PageControls::lblStar1 },
  { &PageControls::txtStar2,           &PageControls::lblStar2 },
  { &PageControls::txtStar3,           &PageControls::lblStar3 },
  { &PageControls::txtStar4,           &PageControls::lblStar4 },
  { &PageControls::txtStar5,           &PageControls::lblStar5 },
  { &PageControls::txtStar6,           &PageControls::lblStar6 },
  { &PageControls::txtLabel,           &PageControls::lblLabel },
  { &PageControls::txtFormat,          &PageControls::lblFormat },
  { &PageControls::txtNumReel,         &PageControls::lblNumReel },
  { &PageControls::txtGenre,           &PageControls::lblGenre },
  { &PageControls::txtGenreList,       &PageControls::lblGenreList1 },
  { &PageControls::txtTime,            &PageControls::lblTime },
  { &PageControls::txtYear,            &PageControls::lblYear },
  { &PageControls::txtCassNo,          &PageControls::lblCassNo },
  { &PageControls::txtLetter,          &PageControls::lblLetter },
  { &PageControls::txtCLV1,            &PageControls::lblCLV },
  { &PageControls::txtColor1,          &PageControls::lblColor1 },
};

inline constexpr PagePair PageTwo[] = {
  { &PageControls::txtProducer,        &PageControls::lblProducer },
  { &PageControls::txtCinematographer, &PageControls::lblCinematographer },
  { &PageControls::txtWritten,         &PageControls::lblWritten },
  { &PageControls::txtMusic,           &PageControls::lblMusic },
  { &PageControls::txtChoreography,    &PageControls::lblDance },
  { &PageControls::txtSetDirection,    &PageControls::lblSetDirection },
  { &PageControls::txtCostume,         &PageControls::lblCostume },
  { &PageControls::txtSound,           &PageControls::lblSound },
  { &PageControls::txtRating,          &PageControls::lblMPAA },
  { &PageControls::txtAwards,          &PageControls::lblAward },
  { &PageControls::txtPackage,         &PageControls::lblPackage },
  { &PageControls::txtPurchase,        &PageControls::lblPurchase },
  { &PageControls::txtCost,            &PageControls::lblCost },
  { &PageControls::txtRatings,         &PageControls::lblRates },
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

constexpr forms::TextBox PageControls::*BoxOf(FilmField field) {
  return RecordBoxes[static_cast<std::size_t>(field)].Box;
}

}  // namespace screen
