// Saving: what stands in the boxes goes into the record and onto the disk, and the screen comes back to rest.
#include "runtime/text.h"
#include "screen/frmPage1.h"
#include "screen/record_boxes.h"
#include "store/master_file.h"

using store::FilmField;

namespace {

// The leading articles, tried one after the other; one that has fired does not stop the later ones.
struct ArticleRow {
  std::string_view Article;  // with its blank
  std::string_view Suffix;
};
// clang-format off
constexpr ArticleRow Articles[] = {
  { "The ", ", The" },
  { "An ",  ", An" },
  { "A ",   ", A" },
  { "THE ", ", THE" },
  { "AN ",  ", AN" },
  { "A ",   ", A" },  // once more: it catches a second article that the two tests before it have left in front
};

// Everything behind the title, in the order of the record but for the rating, which is taken before the awards.
constexpr FilmField SavingOrder[] = {
  FilmField::Director, FilmField::Star1,   FilmField::Star2,        FilmField::Star3,        FilmField::Star4,    FilmField::Star5,
  FilmField::Star6,    FilmField::Label,   FilmField::Format,       FilmField::NumReel,      FilmField::Genre,    FilmField::Time,
  FilmField::Year,     FilmField::CassNo,  FilmField::Letter,       FilmField::CLV1,         FilmField::Color1,   FilmField::Producer,
  FilmField::Cinematographer, FilmField::Written, FilmField::Music, FilmField::Choreography, FilmField::SetDirection, FilmField::Costume,
  FilmField::Sound,    FilmField::Rating,  FilmField::Awards,       FilmField::Package,      FilmField::Purchase, FilmField::Cost,
  FilmField::Ratings,
};

// The boxes that a save centres again; txtCassNo, txtGenre and txtGenreList keep the alignment that they have.
constexpr forms::TextBox screen::PageControls::*CentredBoxes[] = {
  &screen::PageControls::txtTitle,        &screen::PageControls::txtColor1,          &screen::PageControls::txtLetter,
  &screen::PageControls::txtCLV1,         &screen::PageControls::txtFormat,          &screen::PageControls::txtDirector,
  &screen::PageControls::txtStar1,        &screen::PageControls::txtStar2,           &screen::PageControls::txtStar3,
  &screen::PageControls::txtStar4,        &screen::PageControls::txtStar5,           &screen::PageControls::txtStar6,
  &screen::PageControls::txtLabel,        &screen::PageControls::txtNumReel,         &screen::PageControls::txtTime,
  &screen::PageControls::txtYear,         &screen::PageControls::txtProducer,        &screen::PageControls::txtCinematographer,
  &screen::PageControls::txtChoreography, &screen::PageControls::txtMusic,           &screen::PageControls::txtSetDirection,
  &screen::PageControls::txtAwards,       &screen::PageControls::txtWritten,         &screen::PageControls::txtCostume,
  &screen::PageControls::txtSound,        &screen::PageControls::txtPackage,         &screen::PageControls::txtPurchase,
  &screen::PageControls::txtCost,         &screen::PageControls::txtRating,          &screen::PageControls::txtRatings,
};
// clang-format on

}  // namespace

void frmPage1::SaveRecord() {
  CurrentFilm.Set(FilmField::Title, txtTitle.Text());
  TitleEnd = static_cast<std::int64_t>(runtime::Position(CurrentFilm.Get(FilmField::Title), "  "));
  MoveArticle();
  for (FilmField field : SavingOrder) CurrentFilm.Set(field, (this->*screen::BoxOf(field)).Text());
  CurrentFilm.Set(FilmField::Tail, "\r\n");
  if (CurrentRecNo == 0) CurrentRecNo = 1;
  store::WriteRecord(Files, static_cast<int>(MasterFileNo), CurrentRecNo, CurrentFilm);
  if (RecordCount == 1) {
    RecordCount = 2;
    FirstRecordAdjust = 1;
    Desk.Repaint();
  }
  if (CurrentRecNo == 2) {
    FirstRecordAdjust = 0;
    Desk.Repaint();
  }
}

// The rest of a title is always taken from the box, not from the field that an earlier test has changed.
void frmPage1::MoveArticle() {
  for (const ArticleRow& row : Articles) {
    if (!CurrentFilm.Get(FilmField::Title).starts_with(row.Article)) continue;
    std::string_view text = txtTitle.Text();
    std::string_view rest = text.substr(std::min(row.Article.size(), text.size()), static_cast<std::size_t>(TitleEnd));
    CurrentFilm.Set(FilmField::Title, std::string(rest).append(row.Suffix));
  }
}

void frmPage1::cmdSave_Click() {
  HelpContext = cmdSave.Ids.HelpId;
  for (forms::ListBox* list : {&List4, &List5, &List6}) list->Hide();
  cmdPrevious.Enable();
  if (EditMode == 1) lblSave.Show();
  if (PageFlag == 1) {
    for (forms::TextBox* box : {&txtGenre, &txtGenreList, &txtCLV1}) box->Hide();
  }
  if (NewMode == 1) {
    lblSorting.SetCaption("\n\rThank You ! Your work has been saved.\n\rYou are being returned to page 1.");
  }
  if (EditMode == 1) SaveRecord();
  if (NewMode == 1) {
    optNotesoff.Enable();
    PageFlag = 0;
    optNotesoff_Click();
  }
  NavFlag2 = 0;
  CountRollback = 0;
  NewMode = 0;
  EditMode = 0;
  ClearOnShow = 0;
  for (auto box : CentredBoxes) (this->*box).SetAlignment(forms::Align::Centre);
  lblSorting.Hide();
  optnoteson.Enable();
  optNotesoff.Enable();
  lblNotes1.Enable();
  txtGenreList.Enable();
  ShowRecord();
  for (forms::Button* button : {&cmdNext, &cmdPrevious, &cmdDelete, &cmdNew, &cmdMatch}) button->Enable();
  lblHead.Show();
  if (ViewState == 0) ShowNewHint();
}

void frmPage1::mnuSave_Click() { cmdSave_Click(); }
