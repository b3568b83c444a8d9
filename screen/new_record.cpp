// New finds a slot and blanks the screen; the focus goes to the title.
#include "screen/frmPage1.h"
#include "store/master_file.h"

using store::FilmField;

namespace {

// Puts into ScanRecNo the first slot with a blank title, or one past the last. True if the collection has a single
// slot, which is used whatever it holds.
bool FindSlot(frmPage1& window) {
  store::FilmRecord probe;
  std::int64_t limit = window.RecordCount;
  window.CurrentRecNo = 1;
  for (window.ScanRecNo = 1; window.ScanRecNo <= limit; window.ScanRecNo += 1) {
    if (window.RecordCount == 1) {
      window.CurrentRecNo = window.ScanRecNo;
      return true;
    }
    store::ReadRecord(window.Files, static_cast<int>(window.MasterFileNo), window.ScanRecNo, probe);
    window.BlankTitleProbe = probe.Get(FilmField::Title).find_first_not_of(' ') == std::string_view::npos ? 1 : 0;
    if (window.BlankTitleProbe == 0 && window.ScanRecNo == window.RecordCount) {
      window.ScanRecNo = window.ScanRecNo + 1 - window.FirstRecordAdjust;
      window.RecordCount = window.RecordCount + 1 - window.FirstRecordAdjust;
      return false;
    }
    if (window.BlankTitleProbe > 0) break;
  }
  window.cmdNext.Disable();
  window.cmdPrevious.Disable();
  return false;
}

}  // namespace

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
  ClearOnShow = screen::ShowRecordBlanks;
  if (!FindSlot(*this)) {
    CurrentRecNo = ScanRecNo;
    ClearRecord();
    ShowRecord();
  }
  CurrentRecNo = ScanRecNo;
  ReadRecord(CurrentRecNo);
  ClearRecord();
  optNotesoff.Select();
  PageFlag = screen::OnPage1;
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
