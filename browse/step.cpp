// Next and Back: one film on or back, in the open view or in record order.
#include "screen/frmPage1.h"
#include "store/key_file.h"

namespace {

// What Next and Back need of a view.
struct WalkedView {
  std::string_view Kind;
  void (frmPage1::*Step)();
  bool NextClearsFormat;  // besides the aspect, which it always clears
  std::string_view TopText;
  std::string_view TopTitle;
};
// clang-format off
constexpr WalkedView WalkedViews[] = {
  { screen::TitleView, &frmPage1::mnuByTitle_Click,   true,  "Beginning of file encounter!",  "ALPHA TITLE SEARCH" },  // only this one clears the format
  { screen::LaserView, &frmPage1::mnuByLaser_Click,   false, "Beginning of file encounter!",  "ALPHA LASER TITLE SEARCH" },
  { screen::VHSView,   &frmPage1::mnuByVHS_Click,     false, "Beginning of file encounter!",  "ALPHA VHS TITLE SEARCH" },
  { screen::DVDView,   &frmPage1::mnuByDVD_Click,     false, "Begining of file encountered!", "ALPHA DVD TITLE SEARCH" },
  { screen::GenreView, &frmPage1::mnuFindGenre_Click, false, "Beginning of file encounter!",  "GENRE SEARCH" },
};
// clang-format on

const WalkedView* ViewOf(std::string_view kind) {
  for (const WalkedView& view : WalkedViews) {
    if (view.Kind == kind) return &view;
  }
  return nullptr;
}

// Shows the slot past the last before reporting the end.
void StepForward(frmPage1& window) {
  for (forms::TextBox* box : {&window.txtDirector, &window.txtColor1, &window.txtCLV1}) box->SetText("");
  window.ReadRecord(window.CurrentRecNo);
  window.txtGenre.SetText(window.CurrentFilm.Get(store::FilmField::Genre));
  if (window.txtGenre.Text().empty()) window.txtGenreList.SetText("");
  window.txtLetter.SetText("");
  window.ShowRecord();
  if (window.CurrentRecNo <= window.RecordCount) return;
  window.Desk.Beep();
  window.Desk.MessageBox(forms::Icon::Warning, "", "End of file encountered!");
  window.cmdReset_Click();
}

void StepBack(frmPage1& window) {
  if (window.CurrentRecNo == 1) {
    window.Desk.Beep();
    window.Desk.MessageBox(forms::Icon::Warning, "", "Top of file encountered!");
    window.ReadRecord(window.CurrentRecNo);
    window.ShowRecord();
    return;
  }
  window.CurrentRecNo -= 1;
  window.ReadRecord(window.CurrentRecNo);
  window.txtLetter.SetText("");
  window.ShowRecord();
}

}  // namespace

void frmPage1::cmdNext_Click() {
  HelpContext = cmdNext.Ids.HelpId;
  if (FindPending == 1) return;
  NavFlag2 = 0;
  EditMode = 0;
  NavDirection = screen::Forward;
  optNotesoff_Click();
  optNotesoff.Select();
  if (ViewKind == "") CurrentRecNo += 1;
  const WalkedView* view = ViewOf(ViewKind);
  if (!view) {
    StepForward(*this);
    return;
  }
  KeyFilePos += 1;
  if (ViewKind == screen::GenreView) RowCursor += 1;
  if (view->NextClearsFormat) txtFormat.SetText("");
  txtLetter.SetText("");
  (this->*view->Step)();
}

void frmPage1::cmdPrevious_Click() {
  HelpContext = cmdPrevious.Ids.HelpId;
  if (SearchState == screen::TextSearch) return;
  for (forms::TextBox* box : {&txtDirector, &txtColor1, &txtCLV1, &txtFormat}) box->SetText("");
  EditMode = 0;
  NavFlag2 = 0;
  optNotesoff_Click();
  optNotesoff.Select();
  if (ViewKind == "") lblHead.SetCaption("To Write A New Record Click New or press Alt W ");
  const WalkedView* view = ViewOf(ViewKind);
  if (!view) {
    StepBack(*this);
    return;
  }
  txtLetter.SetText("");
  bool at_top = KeyFilePos == 1;
  KeyFilePos -= 1;
  if (!at_top) {
    if (ViewKind == screen::GenreView) NavDirection = screen::Backward;
    (this->*view->Step)();
    return;
  }
  Files.Close(KeyFileNo);
  KeyFilePos = 0;
  Desk.Beep();
  Desk.MessageBox(forms::Icon::Warning, view->TopTitle, view->TopText);
  cmdReset_Click();
}
