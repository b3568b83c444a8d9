// The sort run: four passes of the sort operation over the master file. Each writes a key file and a count file, with
// its label and its beep.
#include <iterator>

#include "forms/desk.h"
#include "screen/frmPage1.h"
#include "sort/operation.h"
#include "store/key_file.h"
#include "store/master_file.h"

namespace {

// Everything in which the four passes differ; what is not named here is the same in all.
struct SortPass {
  const store::KeyFile& Keys;
  std::string_view Label;
  std::string_view IncludeTest;   // of the statement, up to its constant
  std::string_view IncludeValue;  // the constant
  std::string_view Tail;          // of the statement, after the closing quote
  std::string_view LeftView;      // ViewKind afterwards; "": unchanged
  bool StaysOpen;                 // the key file remains file 2, without a beep
};

// clang-format off
constexpr SortPass Passes[] = {
  { .Keys         = store::TitleKeys,
    .Label        = "Sorting Titles",
    .IncludeTest  = "1,40,C,GT,",
    .IncludeValue = "000000",
    .Tail         = ") Record(649)",
    .LeftView     = "",
    .StaysOpen    = false },
  { .Keys         = store::DVDKeys,
    .Label        = "Sorting DVD",
    .IncludeTest  = "266,1,C,EQ,",
    .IncludeValue = store::FormatDVD,
    .Tail         = ") Record(649) ",
    .LeftView     = "DVDpra",  // names no view
    .StaysOpen    = false },
  { .Keys         = store::LaserKeys,
    .Label        = "Sorting Lasers",
    .IncludeTest  = "266,1,C,EQ,",
    .IncludeValue = store::FormatLaser,
    .Tail         = ") Record(649) ",
    .LeftView     = "",
    .StaysOpen    = false },
  { .Keys         = store::VHSKeys,
    .Label        = "Sorting VHS",
    .IncludeTest  = "266,1,C,EQ,",
    .IncludeValue = store::FormatVHS,
    .Tail         = ") Record(649) ",
    .LeftView     = "",
    .StaysOpen    = true },
};
// clang-format on

constexpr std::string_view StatementHead = "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(";

std::string StatementOf(const SortPass& pass) {
  std::string statement(StatementHead);
  return statement.append(pass.IncludeTest).append("\"").append(pass.IncludeValue).append("\"").append(pass.Tail);
}

// A pass that fails shows its status and leaves Numrec and the old key file; it writes its count file all the same.
void MakePass(frmPage1& window, const SortPass& pass, sort::Sorter& sorter, std::int32_t& Numrec,
              std::int32_t& Retcode) {
  window.OpenKeyFile(pass.Keys.Name);
  window.lblSorting.Show();
  window.lblSorting.SetCaption("\n\r" + std::string(pass.Label));
  window.Desk.RepaintNow();
  window.SortIncludeValue = pass.IncludeValue;
  window.SortStatement = StatementOf(pass);
  const sort::Result result = sorter.Sort(store::MasterFileName, pass.Keys.Name, window.SortStatement);
  Retcode = static_cast<std::int32_t>(result.Status);
  if (result.Status == sort::Status::Done) {
    Numrec = result.Records;
    window.Files.Replaced(pass.Keys.Name);
  }
  window.lblNumrec.SetCaption(runtime::NumberText(Numrec));
  window.lblRetcode.SetCaption(runtime::NumberText(Retcode));
  window.KeyFileLeftBySort = pass.StaysOpen;
  if (!pass.StaysOpen) {
    window.Files.Close(KeyFileNo);
    window.Desk.Beep();
  }
  window.Files.OpenOutput(CountFileNo, pass.Keys.CountFile);
  window.Files.WriteLine(CountFileNo, window.lblNumrec.Caption());
  window.Files.Close(CountFileNo);
  if (!pass.LeftView.empty()) window.ViewKind = pass.LeftView;
}

}  // namespace

void frmPage1::cmdSort_Click() {
  HelpContext = cmdSort.Ids.HelpId;
  BeginSort();
  MakePasses();
  cmdReset.Show();
  cmdReset_Click();
}

void frmPage1::mnuSort_Click() {
  BeginSort();
  MakePasses();
}

void frmPage1::BeginSort() {
  SortStarted = 1;
  Files.Close(KeyFileNo);
  KeyFileLeftBySort = false;
}

void frmPage1::MakePasses() {
  std::int32_t Numrec = 0;
  std::int32_t Retcode = 0;
  sort::Sorter sorter(Files.Disk());
  double before = 0;  // passes done
  Files.ReplaceTogether([&] {
    for (const SortPass& pass : Passes) {
      sorter.Progress = [&](double read) { Desk.Progress(pass.Label, (before + read) / std::size(Passes)); };
      MakePass(*this, pass, sorter, Numrec, Retcode);
      before += 1;
    }
  });
  lblNumrec.SetCaption(runtime::NumberText(Numrec));
  Desk.Beep();
  ReadCounts();
  for (forms::Label* label : {&lblSorting, &lblNumrec, &lblRetcode}) label->SetCaption("");
  ShowSavedCounts("  -    No. DVDS  ", "  -    No.Laser discs  ", "  -    No.VHS  ");
}
