// The sort run: four passes of the sort operation over the master file, each of which makes one key file and one count
// file anew, with its label and its beep.
#include <iterator>

#include "forms/desk.h"
#include "screen/frmPage1.h"
#include "sort/operation.h"
#include "store/key_file.h"
#include "store/master_file.h"

namespace screen {

// Everything in which the four passes differ; what is not named here is the same in all.
struct SortPass {
  const store::KeyFile& Keys;
  std::string_view Doing;
  std::string_view IncludeTest;  // of the statement, up to its constant
  std::string_view IncludeValue;
  std::string_view Tail;      // of the statement, behind the closing quote
  std::string_view LeftView;  // ViewKind afterwards, "": as it was
  bool StaysOpen;             // the key file stays file 2, and no beep comes
};

}  // namespace screen

namespace {

// clang-format off
constexpr screen::SortPass Passes[] = {
  { store::TitleKeys, "Sorting Titles", "1,40,C,GT,",  "000000",           ") Record(649)",  "",       false },
  { store::DVDKeys,   "Sorting DVD",    "266,1,C,EQ,", store::FormatDVD,   ") Record(649) ", "DVDpra", false },  // names no view
  { store::LaserKeys, "Sorting Lasers", "266,1,C,EQ,", store::FormatLaser, ") Record(649) ", "",       false },
  { store::VHSKeys,   "Sorting VHS",    "266,1,C,EQ,", store::FormatVHS,   ") Record(649) ", "",       true  },
};
// clang-format on

constexpr std::string_view StatementHead = "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(";

std::string StatementOf(const screen::SortPass& pass) {
  std::string statement(StatementHead);
  return statement.append(pass.IncludeTest).append("\"").append(pass.IncludeValue).append("\"").append(pass.Tail);
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
  for (const screen::SortPass& pass : Passes) {
    sorter.Progress = [&](double read) { Desk.Progress(pass.Doing, (before + read) / std::size(Passes)); };
    MakePass(pass, sorter, Numrec, Retcode);
    before += 1;
  }
  lblNumrec.SetCaption(runtime::NumberText(Numrec));
  Desk.Beep();
  ReadCounts();
  for (forms::Label* label : {&lblSorting, &lblNumrec, &lblRetcode}) label->SetCaption("");
  ShowSavedCounts("  -    No. DVDS  ", "  -    No.Laser discs  ", "  -    No.VHS  ");
}

// A pass that fails shows its status and leaves Numrec and the old key file; it writes its count file all the same.
void frmPage1::MakePass(const screen::SortPass& pass, sort::Sorter& sorter, std::int32_t& Numrec,
                        std::int32_t& Retcode) {
  OpenKeyFile(pass.Keys.Name);
  lblSorting.Show();
  lblSorting.SetCaption("\n\r" + std::string(pass.Doing));
  Desk.RepaintNow();
  SortIncludeValue = pass.IncludeValue;
  SortStatement = StatementOf(pass);
  const sort::Result result = sorter.Sort(store::MasterFileName, pass.Keys.Name, SortStatement);
  Retcode = static_cast<std::int32_t>(result.Status);
  if (result.Status == sort::Status::Done) {
    Numrec = result.Records;
    Files.Replaced(pass.Keys.Name);
  }
  lblNumrec.SetCaption(runtime::NumberText(Numrec));
  lblRetcode.SetCaption(runtime::NumberText(Retcode));
  KeyFileLeftBySort = pass.StaysOpen;
  if (!pass.StaysOpen) {
    Files.Close(KeyFileNo);
    Desk.Beep();
  }
  Files.OpenOutput(CountFileNo, pass.Keys.CountFile);
  Files.WriteLine(CountFileNo, lblNumrec.Caption());
  Files.Close(CountFileNo);
  if (!pass.LeftView.empty()) ViewKind = pass.LeftView;
}
