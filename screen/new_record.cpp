// New: a slot is found, the screen is blanked, the user stands on the title.
#include "screen/frmPage1.h"
#include "store/master_file.h"

using store::FilmField;

void frmPage1::cmdNew_Click() {
  HelpContext = cmdNew.Ids.HelpId;
  if (SearchState > 0) return;
  List4.Empty();  // an aspect left in it would come back into the blanked box
  lblSave.Hide();
  FileNoAnswer.clear();
  txtRating.SetText("");
  cmdPrevious.Disable();
  cmdNext.Disable();
  EditMode = 1;
  NewPending = 1;
  NewMode = 1;
  ClearOnShow = 1;
  if (!FindSlot()) {
    CurrentRecNo = ScanRecNo;
    ClearRecord();
    ShowRecord();
  }
  CurrentRecNo = ScanRecNo;
  ReadRecord(CurrentRecNo);
  ClearRecord();
  optNotesoff.Select();
  PageFlag = 0;
  txtTitle.SetFocus();
  SetCaption("Reelora Record Prima" + runtime::NumberText(CurrentRecNo) + "/" + runtime::NumberText(RecordCount));
  txtCLV1.Show();
  txtColor1.Show();
  lblSorting.Show();
  lblSorting.SetCaption(
      "You are inputting onto page 1.   When all entries on this page are complete,  page 2  will come up "
      "automatically.");
  lblHead.SetCaption("");
}

// The first slot with a blank title, or one behind the last; its number goes into ScanRecNo. True where the collection
// has one slot only, which is taken without a look at it.
bool frmPage1::FindSlot() {
  store::FilmRecord probe;
  std::int64_t limit = RecordCount;
  CurrentRecNo = 1;
  for (ScanRecNo = 1; ScanRecNo <= limit; ScanRecNo += 1) {
    if (RecordCount == 1) {
      CurrentRecNo = ScanRecNo;
      return true;
    }
    store::ReadRecord(Files, static_cast<int>(MasterFileNo), ScanRecNo, probe);
    BlankTitleProbe = probe.Get(FilmField::Title).find_first_not_of(' ') == std::string_view::npos ? 1 : 0;
    if (BlankTitleProbe == 0 && ScanRecNo == RecordCount) {
      ScanRecNo = ScanRecNo + 1 - FirstRecordAdjust;
      RecordCount = RecordCount + 1 - FirstRecordAdjust;
      return false;
    }
    if (BlankTitleProbe > 0) break;
  }
  cmdNext.Disable();
  cmdPrevious.Disable();
  return false;
}
