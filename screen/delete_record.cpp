// Delete overwrites the slot of the film on the screen with blanks; the slot is then free.
#include "screen/frmPage1.h"
#include "screen/record_boxes.h"
#include "store/master_file.h"

using store::FilmField;

namespace {

// Clears the boxes. The record's disc mode goes first, or the rule of its box would bring it back.
void BlankFilm(frmPage1& window) {
  window.CurrentFilm.Set(FilmField::CLV1, "");
  for (FilmField field : screen::ClearingOrder) {
    (window.*screen::BoxOf(field)).SetText("");
    if (field == FilmField::Genre) window.txtGenreList.SetText("");
  }
}

}  // namespace

void frmPage1::cmdDelete_Click() {
  HelpContext = cmdDelete.Ids.HelpId;
  if (ListState == screen::ListOpened) return;
  cmdEdit_Click();
  if (Ask("Are you sure you want to DELETE this record? This file will be removed permanently!!") !=
      forms::Answer::Yes) {
    ViewKind = "";
    cmdSave_Click();
    Show();
    ShowRecord();
    return;
  }
  List4.Empty();  // a new film may have left it filled, and txtLetter_Change would take it
  BlankFilm(*this);
  ScanRecNo = CurrentRecNo;
  store::WriteRecord(Files, static_cast<int>(MasterFileNo), CurrentRecNo, store::FilmRecord());
  SaveRecord();  // writes the same slot once more, now with its line end
  for (forms::TextBox* box : {&txtLetter, &txtFormat, &txtCLV1, &txtRating}) box->SetText("");
  lblSorting.SetCaption(
      "               This Record Has Been Deleted!                         To Write a New Record Click The New Button "
      "or Alt W ");
  EditMode = 0;
  NewMode = 0;
  ClearOnShow = 0;
}
