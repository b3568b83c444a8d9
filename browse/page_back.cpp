// Twenty rows back. The page on the screen holds the rows next to KeyFilePos, so that the first click on a list counts
// its way past them; the later ones write from the first match on.
#include "browse/key_walk.h"
#include "store/film_codes.h"

using store::FilmField;

void frmPage1::cmdPrev20_GotFocus() { HelpContext = cmdPrevious.Ids.HelpId; }

void frmPage1::cmdPrev20_Click() {
  HelpContext = cmdPrevious.Ids.HelpId;
  if (ListShown == 1) {
    cmdNext20.Show();
    ReopenKeyFile(ListKeyFile);
  }
  KeyFilePos -= 1;
  if (PageMode == 4) {
    KeyFilePos += 1;
    RowCursor = 19;
  }
  for (;;) {
    MatchPos = 0;
    if (KeyFilePos == 1) {
      ReachTopOfList();
      return;
    }
    ReadKeyBackward();
    if (!TakeScanRecNoOrStop()) return;
    ReadRecord(ScanRecNo);
    ShowRecord();
    MatchGenre();
    if (MatchPos > 0) {
      RecordFound = 1;
      BackCount += 1;
    }
    if (BackCount < 20 || (BackCount > 20 && MatchPos == 0)) continue;
    bool first_of_all = BackCount == 20;
    if (first_of_all && MatchPos == 1) BackCount = 21;
    if (!first_of_all) {
      MatchPos = 0;
      ScanRecNo -= 1;
    }
    if (auto word = store::WordOf(store::Formats, CurrentFilm.Get(FilmField::Format))) txtFormat.SetText(*word);
    WriteListRow(RowCursor);
    if (RowCursor == 0) {
      RowCursor = 20;
      return;
    }
    RowCursor -= 1;
  }
}

// A blank key moves the position once more but is not read over: only at the top is key 1 read in its place.
void frmPage1::ReadKeyBackward() {
  KeyFilePos -= 1;
  ReadKey();
  if (!KeyIsBlank()) return;
  KeyFilePos -= 1;
  if (KeyFilePos != 0) return;
  KeyFilePos = 1;
  ReadKey();
}

void frmPage1::ReachTopOfList() {
  Desk.Beep();
  if (KeyFilePos == 0) KeyFilePos = 1;
  Desk.MessageBox(forms::Icon::Warning, "", "Top of file encountered!");
  Files.Close(KeyFileNo);
  KeyFilePos = 0;
  ListShown = 0;
  cmdPrev20.Hide();
  for (forms::Button* button : {&cmdPrevious, &cmdReset, &cmdNext}) button->Show();
  cmdReset_Click();
}
