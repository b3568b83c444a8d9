// The direct jumps: to a record number, to the last record, to the film entered last.
#include "screen/frmPage1.h"

namespace {

// Runs a step and ignores its failure.
template <typename Statement>
void IgnoreFailure(Statement statement) {
  try {
    statement();
  } catch (const runtime::Failure&) {
    return;
  }
}

void LeaveViewForJump(frmPage1& window, std::string_view heading) {
  window.Files.Close(KeyFileNo);
  window.KeyFilePos = 0;
  window.lblHead.SetCaption(heading);
  window.ViewKind = "";
  window.cmdPrevious.Enable();
}

// The film is shown before its number is tested; a number below 1 is not tested at all.
void EndJumpPastLast(frmPage1& window) {
  if (window.CurrentRecNo <= window.RecordCount) return;
  window.Desk.MessageBox(forms::Icon::Warning, "Reelora Prima ", "End of file!");
  window.cmdReset_Click();
}

void JumpToScanRecNo(frmPage1& window) {
  window.MasterFileNo = 1;
  window.CurrentRecNo = window.ScanRecNo;
  for (forms::TextBox* box : {&window.txtColor1, &window.txtLetter, &window.txtCLV1}) box->SetText("");
  window.ReadRecord(window.CurrentRecNo);
  window.txtGenreList.SetText("");
  window.ShowRecord();
  window.txtLetter.SetText("");
  EndJumpPastLast(window);
}

}  // namespace

void frmPage1::mnuFile_Click() {
  LeaveViewForJump(*this, "    Viewing All Files Numerically");
  FileNoAnswer = Desk.InputBox(BoxTitle, "Enter File No To Search:");
  if (FileNoAnswer.empty()) {
    cmdReset_Click();
    return;
  }
  RecordFound = 1;
  ScanRecNo = runtime::RoundToInt32(runtime::NumericValue(FileNoAnswer));
  JumpToScanRecNo(*this);
}

void frmPage1::mnuLast_Click() {
  LeaveViewForJump(*this, "    Viewing Last File Entered");
  ScanRecNo = RecordCount;
  JumpToScanRecNo(*this);
}

void frmPage1::mnuLastEntry_Click() {
  IgnoreFailure([this] { Files.OpenInput(CountFileNo, "Last"); });
  IgnoreFailure([this] { LastEntryRecNo = Files.ReadItem(CountFileNo); });
  IgnoreFailure([this] { Files.Close(CountFileNo); });
  IgnoreFailure([this] { CurrentRecNo = runtime::WholeNumber(LastEntryRecNo, "Last"); });
  IgnoreFailure([this] { ReadRecord(CurrentRecNo); });
  txtGenreList.SetText("");
  txtLetter.SetText("");
  IgnoreFailure([this] { ShowRecord(); });
  IgnoreFailure([this] { EndJumpPastLast(*this); });
}
