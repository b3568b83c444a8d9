// The direct jumps: to a number, to the highest slot, to the film entered last.
#include "screen/frmPage1.h"

namespace {

// Runs a statement of a handler that passes over what fails.
template <typename Statement>
void PassOverFailure(Statement statement) {
  try {
    statement();
  } catch (const runtime::Failure&) {
    return;
  }
}

}  // namespace

void frmPage1::LeaveViewForJump(std::string_view heading) {
  Files.Close(KeyFileNo);
  KeyFilePos = 0;
  lblHead.SetCaption(heading);
  ViewKind = "";
  cmdPrevious.Enable();
}

void frmPage1::mnuFile_Click() {
  LeaveViewForJump("    Viewing All Files Numerically");
  FileNoAnswer = Desk.InputBox(BoxTitle, "Enter File No To Search:");
  if (FileNoAnswer.empty()) {
    cmdReset_Click();
    return;
  }
  RecordFound = 1;
  ScanRecNo = runtime::RoundToInt32(runtime::NumericValue(FileNoAnswer));
  JumpToScanRecNo();
}

void frmPage1::mnuLast_Click() {
  LeaveViewForJump("    Viewing Last File Entered");
  ScanRecNo = RecordCount;
  JumpToScanRecNo();
}

void frmPage1::JumpToScanRecNo() {
  MasterFileNo = 1;
  CurrentRecNo = ScanRecNo;
  for (forms::TextBox* box : {&txtColor1, &txtLetter, &txtCLV1}) box->SetText("");
  ReadRecord(CurrentRecNo);
  txtGenreList.SetText("");
  ShowRecord();
  txtLetter.SetText("");
  EndJumpPastLast();
}

// The film is shown before its number is looked at; there is no test for a number too low.
void frmPage1::EndJumpPastLast() {
  if (CurrentRecNo <= RecordCount) return;
  Desk.MessageBox(forms::Icon::Warning, "Reelora Prima ", "End of file!");
  cmdReset_Click();
}

void frmPage1::mnuLastEntry_Click() {
  PassOverFailure([this] { Files.OpenInput(CountFileNo, "Last"); });
  PassOverFailure([this] { LastEntryRecNo = Files.ReadItem(CountFileNo); });
  PassOverFailure([this] { Files.Close(CountFileNo); });
  PassOverFailure([this] { CurrentRecNo = runtime::WholeNumber(LastEntryRecNo, "Last"); });
  PassOverFailure([this] { ReadRecord(CurrentRecNo); });
  txtGenreList.SetText("");
  txtLetter.SetText("");
  PassOverFailure([this] { ShowRecord(); });
  PassOverFailure([this] { EndJumpPastLast(); });
}
