// Edit opens the film on the screen for changes; Reset is the way back to a known state from anywhere.
#include "screen/frmPage1.h"

void frmPage1::cmdEdit_Click() {
  HelpContext = cmdEdit.Ids.HelpId;
  if (ListState == 1 || ListState == 2) return;
  lblHead.Hide();
  lblSave.Hide();
  EditMode = 1;
  for (forms::Button* button : {&cmdNext, &cmdPrevious, &cmdDelete}) button->Disable();
  cmdSave.Enable();
  mnuSave.Enable();
  lblNotes1.Hide();
  if (txtFormat.Text() == "Laser") txtCassNo.Disable();
  ShowRecord();
  if (txtFormat.Text() == "Laser" || txtFormat.Text() == "DVD") txtCassNo.Disable();
  if (txtFormat.Text() == "VHS") txtCassNo.Enable();
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
  ViewState = 0;
  PageMode = 0;
  PrintPending = 0;
  if (NewMode == 0) optnoteson.Enable();
  SettleOpenWork();
  ClearRecord();
  Files.Close(KeyFileNo);
  ViewKind = "";
  CurrentRecNo = 1;
  ReadRecord(CurrentRecNo);
  ShowRecord();
  if (ViewState == 0) ShowNewHint();
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

// Only Yes, or a click on the colour box alone, gives back the count of a new film that is given up; No does not.
void frmPage1::SettleOpenWork() {
  if (EditMode == 0 && NewMode == 0 && ClearOnShow == 0) return;
  if (EditMode == 1 || NewMode == 1) {
    PromptText = "You have not saved your work.  To save it now hit Yes.";
    bool yes = Ask(PromptText) == forms::Answer::Yes;
    EditMode = 0;
    NewMode = 0;
    ClearOnShow = 0;
    if (!yes) return;
    SaveRecord();
  }
  if (NewPending == 1) CountRollback = 1;
  ViewKind = "";
  KeyFilePos = 0;
  NavDirection = 0;
  NavFlag2 = 0;
}
