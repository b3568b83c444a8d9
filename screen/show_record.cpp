// ShowRecord: the only path from the record to the screen. It trims the fields of the record as it reads them, so that
// a later save stores them trimmed.
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
  { "",                "      Title Non Sorted",         "" },
  { screen::TitleView, "      Title Sorted All Formats", "Viewing All Titles Alphabetically" },
  { screen::DVDView,   "        DVD  Sorted",            "Viewing All DVD Titles Alphabetically" },
  { screen::VHSView,   "        VHS  Sorted",            "Viewing All VHS Titles Alphabetically" },
  { screen::LaserView, "      Laser Sorted",             "Viewing All Laser Titles Alphabetically" },
};
constexpr std::string_view GenreSuffix = "      Genre Sorted";

// The fields shown trimmed in a run, in the order of the record: page 1 before the format, page 2 but for the rating.
constexpr FilmField Page1Fields[] = {
  FilmField::Title, FilmField::Director, FilmField::Star1, FilmField::Star2, FilmField::Star3, FilmField::Star4, FilmField::Star5,
  FilmField::Star6,
};
constexpr FilmField Page2Fields[] = {
  FilmField::Producer, FilmField::Cinematographer, FilmField::Written, FilmField::Music, FilmField::Choreography, FilmField::SetDirection,
  FilmField::Costume, FilmField::Sound, FilmField::Awards, FilmField::Package, FilmField::Purchase, FilmField::Cost, FilmField::Ratings,
};
// clang-format on

// The title bar, and the heading if the view has one.
void ShowHeading(frmPage1& window) {
  std::string title = "Reelora Prima Record " + runtime::NumberText(window.CurrentRecNo) + "/" +
                      runtime::NumberText(window.RecordCount);
  for (const ViewTexts& view : Views) {
    if (window.ViewKind != view.Kind) continue;
    title += view.Suffix;
    if (!view.Heading.empty()) window.lblHead.SetCaption(view.Heading);
  }
  if (window.ViewKind == screen::GenreView) {
    title += GenreSuffix;
    window.lblHead.SetCaption("Viewing All " + window.txtGenreList.Text() + " Files Alphabetically");
  }
  window.SetCaption(title);
  if (window.ViewState == screen::ViewHome) window.ShowNewHint();
  if (window.PrintPending > 0) window.lblHead.SetCaption("Please wait print spooler is loading files.");
}

// The first pass over the format: a blank letter leaves the box as it was.
void ShowFormatLetter(frmPage1& window) {
  std::string_view letter = window.CurrentFilm.Get(FilmField::Format);
  if (letter == store::FormatLaser) {
    window.txtCassNo.Disable();
    window.txtFormat.SetText(store::LaserWord);
  }
  if (window.txtFormat.Text() == store::LaserWord) window.txtCassNo.Disable();
  if (letter == store::FormatVHS) window.txtFormat.SetText(store::VHSWord);
  if (letter == store::FormatDVD) window.txtCassNo.SetText("");
}

// Trims the field's text, and left-justifies it in the record.
std::string_view TrimField(store::FilmRecord& film, FilmField field) {
  std::string_view whole = film.Get(field);
  if (whole.front() == ' ') film.Set(field, runtime::TrimFront(whole));
  return runtime::Trim(whole);
}

void ShowTrimmed(frmPage1& window, FilmField field) {
  (window.*screen::BoxOf(field)).SetText(TrimField(window.CurrentFilm, field));
}

}  // namespace

void frmPage1::ShowRecord() {
  ++FilmsShown;
  if (EditMode == 0) lblSorting.Hide();
  if (ClearOnShow == screen::ShowRecordBlanks) ClearRecord();
  lblNumrec.SetCaption("");
  lblRetcode.SetCaption("");
  RecordCount -= CountRollback;
  if (EditMode == 0) txtGenreList.Enable();
  ShowHeading(*this);
  txtCLV1.SetText("");
  for (FilmField field : Page1Fields) ShowTrimmed(*this, field);
  ShowFormatLetter(*this);
  ShowAspect();
  ShowTrimmed(*this, FilmField::Label);
  txtFormat.SetText(runtime::Upper(TrimField(CurrentFilm, FilmField::Format)));
  txtNumReel.SetText(CurrentFilm.Get(FilmField::NumReel));
  if (EditMode == 0) txtGenreList.Enable();
  txtGenre.SetText(runtime::Upper(TrimField(CurrentFilm, FilmField::Genre)));
  ShowTrimmed(*this, FilmField::Time);
  ShowTrimmed(*this, FilmField::Year);
  ShowTrimmed(*this, FilmField::CassNo);
  ShowTrimmed(*this, FilmField::CLV1);
  ShowTrimmed(*this, FilmField::Color1);
  txtCassNo.Enable();
  if (EditMode != 1 || CurrentFilm.Get(FilmField::Letter) == store::AspectWide) ShowAspect();
  txtCLV1.SetText(CurrentFilm.Get(FilmField::CLV1));
  txtColor1.SetText(CurrentFilm.Get(FilmField::Color1));
  for (FilmField field : Page2Fields) ShowTrimmed(*this, field);
  txtRating.SetText(CurrentFilm.Get(FilmField::Rating));
  CountRollback = 0;
  NewPending = 0;
  Desk.Repaint();
}

// An unknown letter leaves the box as it was.
void frmPage1::ShowAspect() {
  if (auto word = store::WordOf(store::Aspects, CurrentFilm.Get(FilmField::Letter))) txtLetter.SetText(*word);
}

void frmPage1::ClearRecord() {
  for (FilmField field : screen::ClearingOrder) {
    CurrentFilm.Set(field, "");
    (this->*screen::BoxOf(field)).SetText("");
    if (field == FilmField::Genre) txtGenreList.SetText("");
  }
}
