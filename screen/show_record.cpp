// ShowRecord: the one road from the record to the screen. It trims the fields of the record as it reads them, so that a
// later save stores the normal form.
#include <cstring>

#include "screen/frmPage1.h"
#include "screen/record_boxes.h"
#include "store/film_codes.h"

using store::FilmField;

namespace {

// Title bar and heading by ViewKind. GenreName: the heading has the words of the genre between its two parts.
struct ViewTexts {
  std::string_view Kind;
  std::string_view Suffix;
  std::string_view Heading;
};
// clang-format off
constexpr ViewTexts Views[] = {
  { "",      "      Title Non Sorted",         "" },
  { "Title", "      Title Sorted All Formats", "Viewing All Titles Alphabetically" },
  { "DVD",   "        DVD  Sorted",            "Viewing All DVD Titles Alphabetically" },
  { "VHS",   "        VHS  Sorted",            "Viewing All VHS Titles Alphabetically" },
  { "Laser", "      Laser Sorted",             "Viewing All Laser Titles Alphabetically" },
};
constexpr std::string_view GenreSuffix = "      Genre Sorted";

// The fields of page 1 up to the format, and those of page 2, in the order in which they are shown.
constexpr screen::RecordBox FirstBoxes[] = {
  { FilmField::Title,    &screen::Page1Controls::txtTitle },
  { FilmField::Director, &screen::Page1Controls::txtDirector },
  { FilmField::Star1,    &screen::Page1Controls::txtStar1 },
  { FilmField::Star2,    &screen::Page1Controls::txtStar2 },
  { FilmField::Star3,    &screen::Page1Controls::txtStar3 },
  { FilmField::Star4,    &screen::Page1Controls::txtStar4 },
  { FilmField::Star5,    &screen::Page1Controls::txtStar5 },
  { FilmField::Star6,    &screen::Page1Controls::txtStar6 },
};
constexpr screen::RecordBox LastBoxes[] = {
  { FilmField::Producer,        &screen::Page1Controls::txtProducer },
  { FilmField::Cinematographer, &screen::Page1Controls::txtCinematographer },
  { FilmField::Written,         &screen::Page1Controls::txtWritten },
  { FilmField::Music,           &screen::Page1Controls::txtMusic },
  { FilmField::Choreography,    &screen::Page1Controls::txtChoreography },
  { FilmField::SetDirection,    &screen::Page1Controls::txtSetDirection },
  { FilmField::Costume,         &screen::Page1Controls::txtCostume },
  { FilmField::Awards,          &screen::Page1Controls::txtAwards },
  { FilmField::Sound,           &screen::Page1Controls::txtSound },
};
constexpr screen::RecordBox OwnBoxes[] = {
  { FilmField::Package,  &screen::Page1Controls::txtPackage },
  { FilmField::Purchase, &screen::Page1Controls::txtPurchase },
  { FilmField::Cost,     &screen::Page1Controls::txtCost },
  { FilmField::Ratings,  &screen::Page1Controls::txtRatings },
};
// clang-format on

}  // namespace

void frmPage1::ShowRecord() {
  if (EditMode == 0) lblSorting.Hide();
  if (ClearOnShow == 1) ClearRecord();
  lblNumrec.SetCaption("");
  lblRetcode.SetCaption("");
  RecordCount -= CountRollback;
  if (EditMode == 0) txtGenreList.Enable();
  ShowHeading();
  txtCLV1.SetText("");
  for (const screen::RecordBox& row : FirstBoxes) ShowTrimmed(row.Field, this->*row.Box);
  ShowFormatLetter();
  ShowAspect("WPT");
  ShowTrimmed(FilmField::Label, txtLabel);
  txtFormat.SetText(runtime::Upper(TrimField(FilmField::Format)));
  txtNumReel.SetText(CurrentFilm.Get(FilmField::NumReel));
  if (EditMode == 0) txtGenreList.Enable();
  txtGenre.SetText(runtime::Upper(TrimField(FilmField::Genre)));
  ShowTrimmed(FilmField::Time, txtTime);
  ShowTrimmed(FilmField::Year, txtYear);
  ShowTrimmed(FilmField::CassNo, txtCassNo);
  ShowTrimmed(FilmField::CLV1, txtCLV1);
  ShowTrimmed(FilmField::Color1, txtColor1);
  txtCassNo.Enable();
  ShowAspect(EditMode == 1 ? "W" : "WPT");
  txtCLV1.SetText(CurrentFilm.Get(FilmField::CLV1));
  txtColor1.SetText(CurrentFilm.Get(FilmField::Color1));
  for (const screen::RecordBox& row : LastBoxes) ShowTrimmed(row.Field, this->*row.Box);
  txtRating.SetText(CurrentFilm.Get(FilmField::Rating));
  for (const screen::RecordBox& row : OwnBoxes) ShowTrimmed(row.Field, this->*row.Box);
  CountRollback = 0;
  NewPending = 0;
  Desk.Repaint();
}

// The title bar, and the heading where the view has one.
void frmPage1::ShowHeading() {
  std::string title = "Reelora Prima Record " + runtime::S(CurrentRecNo) + "/" + runtime::S(RecordCount);
  for (const ViewTexts& view : Views) {
    if (ViewKind != view.Kind) continue;
    title += view.Suffix;
    if (!view.Heading.empty()) lblHead.SetCaption(view.Heading);
  }
  if (ViewKind == "Genre") {
    title += GenreSuffix;
    lblHead.SetCaption("Viewing All " + txtGenreList.Text() + " Files Alphabetically");
  }
  SetCaption(title);
  if (ViewState == 0) ShowNewHint();
  if (PrintPending > 0) lblHead.SetCaption("Please wait print spooler is loading files.");
}

// The first pass over the format: a blank letter leaves the box as it was.
void frmPage1::ShowFormatLetter() {
  char letter = CurrentFilm.Get(FilmField::Format)[0];
  if (letter == 'L') {
    txtCassNo.Disable();
    txtFormat.SetText("Laser");
  }
  if (txtFormat.Text() == "Laser") txtCassNo.Disable();
  if (letter == 'V') txtFormat.SetText("VHS");
  if (letter == 'D') txtCassNo.SetText("");
}

// Any letter but these leaves the box as it was.
void frmPage1::ShowAspect(std::string_view letters) {
  std::string_view letter = CurrentFilm.Get(FilmField::Letter);
  if (letters.find(letter) == std::string_view::npos) return;
  if (auto word = store::WordOf(store::Aspects, letter)) txtLetter.SetText(*word);
}

// The field's text without blanks, which the record then holds left-justified.
std::string_view frmPage1::TrimField(FilmField field) {
  std::string_view whole = CurrentFilm.Get(field);
  if (whole.front() == ' ') CurrentFilm.Set(field, runtime::TrimFront(whole));
  return runtime::Trim(whole);
}

void frmPage1::ShowTrimmed(FilmField field, forms::TextBox& box) { box.SetText(TrimField(field)); }

void frmPage1::ClearRecord() {
  for (const screen::RecordBox& row : screen::ClearingOrder) {
    CurrentFilm.Set(row.Field, "");
    (this->*row.Box).SetText("");
    if (row.Field == FilmField::Genre) txtGenreList.SetText("");
  }
}
