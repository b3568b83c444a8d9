// Which box shows which field of the record, and which tag stands under it, once.
#pragma once

#include "screen/controls.h"
#include "store/film_record.h"

namespace screen {

struct RecordBox {
  store::FilmField Field;
  forms::TextBox Page1Controls::*Box;
};

// clang-format off
// In the order in which a film is blanked: ShowRecord's clearing, New, Reset and Delete.
inline constexpr RecordBox ClearingOrder[] = {
  { store::FilmField::Title,           &Page1Controls::txtTitle },
  { store::FilmField::Director,        &Page1Controls::txtDirector },
  { store::FilmField::Star1,           &Page1Controls::txtStar1 },
  { store::FilmField::Star2,           &Page1Controls::txtStar2 },
  { store::FilmField::Star3,           &Page1Controls::txtStar3 },
  { store::FilmField::Star4,           &Page1Controls::txtStar4 },
  { store::FilmField::Star5,           &Page1Controls::txtStar5 },
  { store::FilmField::Star6,           &Page1Controls::txtStar6 },
  { store::FilmField::Label,           &Page1Controls::txtLabel },
  { store::FilmField::Format,          &Page1Controls::txtFormat },
  { store::FilmField::NumReel,         &Page1Controls::txtNumReel },
  { store::FilmField::Genre,           &Page1Controls::txtGenre },
  { store::FilmField::Time,            &Page1Controls::txtTime },
  { store::FilmField::Year,            &Page1Controls::txtYear },
  { store::FilmField::CassNo,          &Page1Controls::txtCassNo },
  { store::FilmField::Letter,          &Page1Controls::txtLetter },
  { store::FilmField::Color1,          &Page1Controls::txtColor1 },  // before CLV1, unlike saving
  { store::FilmField::CLV1,            &Page1Controls::txtCLV1 },
  { store::FilmField::Producer,        &Page1Controls::txtProducer },
  { store::FilmField::Cinematographer, &Page1Controls::txtCinematographer },
  { store::FilmField::Written,         &Page1Controls::txtWritten },
  { store::FilmField::Music,           &Page1Controls::txtMusic },
  { store::FilmField::Choreography,    &Page1Controls::txtChoreography },
  { store::FilmField::SetDirection,    &Page1Controls::txtSetDirection },
  { store::FilmField::Costume,         &Page1Controls::txtCostume },
  { store::FilmField::Sound,           &Page1Controls::txtSound },
  { store::FilmField::Rating,          &Page1Controls::txtRating },
  { store::FilmField::Awards,          &Page1Controls::txtAwards },
  { store::FilmField::Package,         &Page1Controls::txtPackage },
  { store::FilmField::Purchase,        &Page1Controls::txtPurchase },
  { store::FilmField::Cost,            &Page1Controls::txtCost },
  { store::FilmField::Ratings,         &Page1Controls::txtRatings },
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

}  // namespace screen
