// ShowRecord: the one road from the record to the screen. It trims the fields of the record as it reads them, so that a
// later save stores the normal form.
#include <cstring>

#include "screen/frmPage1.h"
#include "screen/record_boxes.h"
#include "store/film_codes.h"

using store::FilmField;

namespace {

// Title bar and heading by ViewKind; an empty heading leaves lblHead as it was.
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

// The fields that are shown trimmed and in a row: those of page 1 before the format, and the credits and own data of page 2.
constexpr FilmField FirstFields[] = {
  FilmField::Title, FilmField::Director, FilmField::Star1, FilmField::Star2, FilmField::Star3, FilmField::Star4, FilmField::Star5,
  FilmField::Star6,
};
constexpr FilmField CreditFields[] = {
  FilmField::Producer, FilmField::Cinematographer, FilmField::Written, FilmField::Music, FilmField::Choreography, FilmField::SetDirection,
  FilmField::Costume, FilmField::Awards, FilmField::Sound,
};
constexpr FilmField OwnFields[] = { FilmField::Package, FilmField::Purchase, FilmField::Cost, FilmField::Ratings };
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
  for (FilmField field : FirstFields) ShowTrimmed(field);
  ShowFormatLetter();
  ShowAspect("WPT");
  ShowTrimmed(FilmField::Label);
  txtFormat.SetText(runtime::Upper(TrimField(FilmField::Format)));
  txtNumReel.SetText(CurrentFilm.Get(FilmField::NumReel));
  if (EditMode == 0) txtGenreList.Enable();
  txtGenre.SetText(runtime::Upper(TrimField(FilmField::Genre)));
  ShowTrimmed(FilmField::Time);
  ShowTrimmed(FilmField::Year);
  ShowTrimmed(FilmField::CassNo);
  ShowTrimmed(FilmField::CLV1);
  ShowTrimmed(FilmField::Color1);
  txtCassNo.Enable();
  ShowAspect(EditMode == 1 ? "W" : "WPT");
  txtCLV1.SetText(CurrentFilm.Get(FilmField::CLV1));
  txtColor1.SetText(CurrentFilm.Get(FilmField::Color1));
  for (FilmField field : CreditFields) ShowTrimmed(field);
  txtRating.SetText(CurrentFilm.Get(FilmField::Rating));
  for (FilmField field : OwnFields) ShowTrimmed(field);
  CountRollback = 0;
  NewPending = 0;
  Desk.Repaint();
}

// The title bar, and the heading where the view has one.
void frmPage1::ShowHeading() {
  std::string title =
      "Reelora Prima Record " + runtime::NumberText(CurrentRecNo) + "/" + runtime::NumberText(RecordCount);
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

void frmPage1::ShowTrimmed(FilmField field) { (this->*screen::BoxOf(field)).SetText(TrimField(field)); }

void frmPage1::ClearRecord() {
  for (FilmField field : screen::ClearingOrder) {
    CurrentFilm.Set(field, "");
    (this->*screen::BoxOf(field)).SetText("");
    if (field == FilmField::Genre) txtGenreList.SetText("");
  }
}
