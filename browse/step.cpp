// Next and Back: one film on or back in whatever the screen is walking.
#include "browse/key_walk.h"

namespace {

// The sorted views as the two buttons know them.
struct WalkedView {
  std::string_view Kind;
  void (frmPage1::*Step)();
  bool NextClearsFormat;  // beside the aspect, which it always empties
  std::string_view TopText;
  std::string_view TopTitle;
};
// clang-format off
constexpr WalkedView WalkedViews[] = {
  { "Title", &frmPage1::mnuByTitle_Click,   true,  "Beginning of file encounter!",  "ALPHA TITLE SEARCH" },  // alone in clearing the format
  { "Laser", &frmPage1::mnuByLaser_Click,   false, "Beginning of file encounter!",  "ALPHA LASER TITLE SEARCH" },
  { "VHS",   &frmPage1::mnuByVHS_Click,     false, "Beginning of file encounter!",  "ALPHA VHS TITLE SEARCH" },
  { "DVD",   &frmPage1::mnuByDVD_Click,     false, "Begining of file encountered!", "ALPHA DVD TITLE SEARCH" },
  { "Genre", &frmPage1::mnuFindGenre_Click, false, "Beginning of file encounter!",  "GENRE SEARCH" },
};
// clang-format on

const WalkedView* ViewOf(std::string_view kind) {
  for (const WalkedView& view : WalkedViews) {
    if (view.Kind == kind) return &view;
  }
  return nullptr;
}

}  // namespace

void frmPage1::cmdNext_Click() {
  HelpContext = cmdNext.Ids.HelpId;
  if (FindPending == 1) return;
  NavFlag2 = 0;
  EditMode = 0;
  NavDirection = 0;
  optNotesoff_Click();
  optNotesoff.Select();
  if (ViewKind == "") CurrentRecNo += 1;
  const WalkedView* view = ViewOf(ViewKind);
  if (!view) {
    StepOn();
    return;
  }
  KeyFilePos += 1;
  if (ViewKind == "Genre") RowCursor += 1;
  if (view->NextClearsFormat) txtFormat.SetText("");
  txtLetter.SetText("");
  (this->*view->Step)();
}

// The slot behind the last is shown before the end is told.
void frmPage1::StepOn() {
  for (forms::TextBox* box : {&txtDirector, &txtColor1, &txtCLV1}) box->SetText("");
  ReadRecord(CurrentRecNo);
  txtGenre.SetText(CurrentFilm.Get(store::FilmField::Genre));
  if (txtGenre.Text().empty()) txtGenreList.SetText("");
  txtLetter.SetText("");
  ShowRecord();
  if (CurrentRecNo <= RecordCount) return;
  Desk.Beep();
  Desk.MessageBox(forms::Icon::Warning, "", "End of file encountered!");
  cmdReset_Click();
}

void frmPage1::cmdPrevious_Click() {
  HelpContext = cmdPrevious.Ids.HelpId;
  if (SearchState == 1) return;
  for (forms::TextBox* box : {&txtDirector, &txtColor1, &txtCLV1, &txtFormat}) box->SetText("");
  EditMode = 0;
  NavFlag2 = 0;
  optNotesoff_Click();
  optNotesoff.Select();
  if (ViewKind == "") lblHead.SetCaption("To Write A New Record Click New or press Alt W ");
  const WalkedView* view = ViewOf(ViewKind);
  if (!view) {
    StepBack();
    return;
  }
  txtLetter.SetText("");
  bool at_top = KeyFilePos == 1;
  KeyFilePos -= 1;
  if (!at_top) {
    if (ViewKind == "Genre") NavDirection = 1;
    (this->*view->Step)();
    return;
  }
  Files.Close(KeyFileNo);
  KeyFilePos = 0;
  Desk.Beep();
  Desk.MessageBox(forms::Icon::Warning, view->TopTitle, view->TopText);
  cmdReset_Click();
}

void frmPage1::StepBack() {
  if (CurrentRecNo == 1) {
    Desk.Beep();
    Desk.MessageBox(forms::Icon::Warning, "", "Top of file encountered!");
    ReadRecord(CurrentRecNo);
    ShowRecord();
    return;
  }
  CurrentRecNo -= 1;
  ReadRecord(CurrentRecNo);
  txtLetter.SetText("");
  ShowRecord();
}
