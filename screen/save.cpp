// Save: the texts of the boxes go into the record and onto the disk, and the screen returns to view.
#include "screen/frmPage1.h"
#include "screen/record_boxes.h"
#include "store/article.h"
#include "store/master_file.h"

using store::FilmField;

void frmPage1::SaveRecord() {
  CurrentFilm.Set(FilmField::Title, txtTitle.Text());
  TitleEnd = static_cast<std::int64_t>(store::TitleEndOf(CurrentFilm));
  store::MoveArticle(CurrentFilm, txtTitle.Text(), static_cast<std::size_t>(TitleEnd));
  for (const screen::RecordBox& row : screen::RecordBoxes) {
    if (row.Field != FilmField::Title) CurrentFilm.Set(row.Field, (this->*row.Box).Text());
  }
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

void frmPage1::cmdSave_Click() {
  HelpContext = cmdSave.Ids.HelpId;
  for (forms::ListBox* list : {&List4, &List5, &List6}) list->Hide();
  cmdPrevious.Enable();
  if (EditMode == 1) lblSave.Show();
  if (PageFlag == screen::OnPage2) {
    for (forms::TextBox* box : {&txtGenre, &txtGenreList, &txtCLV1}) box->Hide();
  }
  if (NewMode == 1) {
    lblSorting.SetCaption("\n\rThank You ! Your work has been saved.\n\rYou are being returned to page 1.");
  }
  if (EditMode == 1) SaveRecord();
  if (NewMode == 1) {
    optNotesoff.Enable();
    PageFlag = screen::OnPage1;
    optNotesoff_Click();
  }
  NavFlag2 = 0;
  CountRollback = 0;
  NewMode = 0;
  EditMode = 0;
  ClearOnShow = 0;
  for (const screen::RecordBox& row : screen::RecordBoxes) {
    bool keeps_alignment = row.Field == FilmField::CassNo || row.Field == FilmField::Genre;
    if (!keeps_alignment) (this->*row.Box).SetAlignment(forms::Align::Centre);
  }
  lblSorting.Hide();
  optnoteson.Enable();
  optNotesoff.Enable();
  lblNotes1.Enable();
  txtGenreList.Enable();
  ShowRecord();
  for (forms::Button* button : {&cmdNext, &cmdPrevious, &cmdDelete, &cmdNew, &cmdMatch}) button->Enable();
  lblHead.Show();
  if (ViewState == screen::ViewHome) ShowNewHint();
}

void frmPage1::mnuSave_Click() { cmdSave_Click(); }
