// Twenty rows back. KeyFilePos is at the end of the page on the screen, so the first Back of a list counts past its
// rows; the later ones write from the first match on.
#include "screen/frmPage1.h"
#include "store/film_codes.h"
#include "store/key_file.h"

using store::FilmField;

namespace {

// A blank key moves the position back once more without reading; only at the top is key 1 read in its place.
void ReadKeyBackward(frmPage1& window) {
  window.KeyFilePos -= 1;
  window.ReadKey();
  if (!window.KeyIsBlank()) return;
  window.KeyFilePos -= 1;
  if (window.KeyFilePos != 0) return;
  window.KeyFilePos = 1;
  window.ReadKey();
}

void LeaveListAtTop(frmPage1& window) {
  window.Desk.Beep();
  if (window.KeyFilePos == 0) window.KeyFilePos = 1;
  window.Desk.MessageBox(forms::Icon::Warning, "", "Top of file encountered!");
  window.Files.Close(KeyFileNo);
  window.KeyFilePos = 0;
  window.ListShown = 0;
  window.cmdPrev20.Hide();
  for (forms::Button* button : {&window.cmdPrevious, &window.cmdReset, &window.cmdNext}) button->Show();
  window.cmdReset_Click();
}

}  // namespace

void frmPage1::cmdPrev20_GotFocus() { HelpContext = cmdPrevious.Ids.HelpId; }

void frmPage1::cmdPrev20_Click() {
  HelpContext = cmdPrevious.Ids.HelpId;
  if (ListShown == 1) {
    cmdNext20.Show();
    ReopenKeyFile(ListKeyFile);
  }
  KeyFilePos -= 1;
  if (PageMode == screen::ListContinues) {
    KeyFilePos += 1;
    RowCursor = screen::ListRows - 1;
  }
  for (;;) {
    MatchPos = 0;
    if (KeyFilePos == 1) {
      LeaveListAtTop(*this);
      return;
    }
    ReadKeyBackward(*this);
    if (!TakeScanRecNoOrStop()) return;
    ReadRecord(ScanRecNo);
    ShowRecord();
    MatchGenre();
    if (MatchPos > 0) {
      RecordFound = 1;
      BackCount += 1;
    }
    if (BackCount < screen::ListRows || (BackCount > screen::ListRows && MatchPos == 0)) continue;
    bool first_of_all = BackCount == screen::ListRows;
    if (first_of_all && MatchPos == 1) BackCount = screen::ListRows + 1;
    if (!first_of_all) {
      MatchPos = 0;
      ScanRecNo -= 1;
    }
    if (auto word = store::WordOf(store::Formats, CurrentFilm.Get(FilmField::Format))) txtFormat.SetText(*word);
    WriteListRow(RowCursor);
    if (RowCursor == 0) {
      RowCursor = screen::ListRows;
      return;
    }
    RowCursor -= 1;
  }
}
