// The sort run: four passes of the sort operation over the master file. Each writes a key file and a count file, with
// its label and its beep.
#include <iterator>

#include "forms/desk.h"
#include "screen/frmPage1.h"
#include "sort/operation.h"
#include "store/master_file.h"
#include "store/sort_pass.h"

namespace {

// Everything in which the four passes differ besides their statements; what is not named here is the same in all.
struct LabelledPass {
  const store::SortPass& Pass;
  std::string_view Label;
  std::string_view LeftView;  // ViewKind afterwards; "": unchanged
  bool StaysOpen;             // the key file remains file 2, without a beep
};

// clang-format off
constexpr LabelledPass Passes[] = {
  { .Pass = store::SortPasses[0], .Label = "Sorting Titles", .LeftView = "",       .StaysOpen = false },
  { .Pass = store::SortPasses[1], .Label = "Sorting DVD",    .LeftView = "DVDpra", .StaysOpen = false },  // names no view
  { .Pass = store::SortPasses[2], .Label = "Sorting Lasers", .LeftView = "",       .StaysOpen = false },
  { .Pass = store::SortPasses[3], .Label = "Sorting VHS",    .LeftView = "",       .StaysOpen = true },
};
// clang-format on

// A pass that fails shows its status and leaves Numrec and the old key file; it writes its count file all the same.
void MakePass(frmPage1& window, const LabelledPass& pass, sort::Sorter& sorter, std::int32_t& Numrec,
              std::int32_t& Retcode) {
  const store::KeyFile& keys = pass.Pass.Keys;
  window.OpenKeyFile(keys.Name);
  window.lblSorting.Show();
  window.lblSorting.SetCaption("\n\r" + std::string(pass.Label));
  window.Desk.RepaintNow();
  window.SortIncludeValue = pass.Pass.IncludeValue;
  window.SortStatement = store::StatementOf(pass.Pass);
  const sort::Result result =
      sorter.Sort(store::MasterFileName, keys.Name, window.SortStatement, store::StatementAfter(pass.Pass));
  Retcode = static_cast<std::int32_t>(result.Status);
  if (result.Status == sort::Status::Done) {
    Numrec = result.Records;
    window.Files.Replaced(keys.Name);
  }
  window.lblNumrec.SetCaption(runtime::NumberText(Numrec));
  window.lblRetcode.SetCaption(runtime::NumberText(Retcode));
  window.KeyFileLeftBySort = pass.StaysOpen;
  if (!pass.StaysOpen) {
    window.Files.Close(KeyFileNo);
    window.Desk.Beep();
  }
  window.Files.OpenOutput(CountFileNo, keys.CountFile);
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
    for (const LabelledPass& pass : Passes) {
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
