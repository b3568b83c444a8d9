// Edit opens the film on the screen for changes; Reset returns from anywhere to a known state.
#include "screen/frmPage1.h"
#include "store/film_codes.h"

namespace {

// An abandoned new film's slot is given back after Yes, or after a mere click on the colour box, not after No.
void SettleOpenWork(frmPage1& window) {
  if (window.EditMode == 0 && window.NewMode == 0 && window.ClearOnShow == 0) return;
  if (window.EditMode == 1 || window.NewMode == 1) {
    window.PromptText = "You have not saved your work.  To save it now hit Yes.";
    bool yes = window.Ask(window.PromptText) == forms::Answer::Yes;
    window.EditMode = 0;
    window.NewMode = 0;
    window.ClearOnShow = 0;
    if (!yes) return;
    window.SaveRecord();
  }
  if (window.NewPending == 1) window.CountRollback = 1;
  window.ViewKind = "";
  window.KeyFilePos = 0;
  window.NavDirection = screen::Forward;
  window.NavFlag2 = 0;
}

}  // namespace

void frmPage1::cmdEdit_Click() {
  HelpContext = cmdEdit.Ids.HelpId;
  if (ListState == screen::ListOpened) return;
  lblHead.Hide();
  lblSave.Hide();
  EditMode = 1;
  for (forms::Button* button : {&cmdNext, &cmdPrevious, &cmdDelete}) button->Disable();
  cmdSave.Enable();
  mnuSave.Enable();
  lblNotes1.Hide();
  if (txtFormat.Text() == store::LaserWord) txtCassNo.Disable();
  ShowRecord();
  if (txtFormat.Text() == store::LaserWord || txtFormat.Text() == store::DVDWord) txtCassNo.Disable();
  if (txtFormat.Text() == store::VHSWord) txtCassNo.Enable();
  txtCLV1.Show();
  txtColor1.Show();
  lblSorting.Show();
  lblSorting.SetCaption("\r\n\r\n          Save Work When Finished!");
}

void frmPage1::cmdReset_Click() {
  HelpContext = cmdReset.Ids.HelpId;
  ListShownAlso = 0;
  KeyFilePos = 0;
  ListShown = 0;
  cmdNext20.Hide();
  MatchKind = "";
  txtGenreList.Enable();
  List4.Hide();
  ListState = 0;
  SearchState = 0;
  FindPending = 0;
  List6.Hide();
  optNotesoff.Show();
  optnoteson.Show();
  cmdPrevious.Show();
  cmdNew.Show();
  ViewState = screen::ViewHome;
  PageMode = 0;
  PrintPending = 0;
  if (NewMode == 0) optnoteson.Enable();
  SettleOpenWork(*this);
  ClearRecord();
  Files.Close(KeyFileNo);
  ViewKind = "";
  CurrentRecNo = 1;
  ReadRecord(CurrentRecNo);
  ShowRecord();
  if (ViewState == screen::ViewHome) ShowNewHint();
  optNotesoff_Click();
  optNotesoff.Select();
  optNotesoff.Show();
  cmdSave_Click();
  cmdNext20.Hide();
  cmdNext.Show();
  for (screen::GridColumn* column : {&Text1, &Text2, &Text3}) {
    for (forms::TextBox& row : *column) row.Hide();
  }
}
