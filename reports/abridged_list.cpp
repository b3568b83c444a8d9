// One routine for the four lists, one table of their differences.
#include "reports/abridged_list.h"

#include <algorithm>

#include "store/film_codes.h"

using screen::RunState;

namespace reports {
namespace {

// The divisor of the page estimate; a page really holds 48 to 50 films.
constexpr std::int32_t KeysPerPage = 53;
constexpr int LastLine = 56;

constexpr std::string_view ColumnHeads =
    "Title                                    Date     Genre                 Format ";

}  // namespace

// clang-format off
constexpr AbridgedList AllTitlesList = {
  .OnEntry = Entry::LeavesFile, .ViewKind = "Title",
  .Keys = store::TitleKeys, .CountWord = &RunState::TitleCount,
  .Headline = "All Titles Abridged Print Program",
  .Unsorted = "Records have not been sorted.  Records must be sorted before a report can be written!",
  .Question = "Are you sure you want to Print Abridged List?,  This List only prints Title, Date, Genre and Format. It will take ",
  .TitleTab = 5, .Title = "Reelora Prima Short Print List    ",
  .Format = FormatWord::LaserForL, .ClosingRule = false, .TotalTab = 1, .Total = "TOTAL FILM(S)  ", .PageTab = 35,
};
// Odd on purpose: the view kind is the stem of the file name, not "DVD".
constexpr AbridgedList DvdList = {
  .OnEntry = Entry::ClosesFileOfOtherViews, .ViewKind = store::DVDKeys.CountFile,
  .Keys = store::DVDKeys, .CountWord = &RunState::DVDCount,
  .Headline = "All DVD Titles Abridged Print Program",
  .Unsorted = "DVD Records have not been sorted, or there are no records to sort.  Records must be sorted before a report can be written!",
  .Question = "Do you want to print DVD disc library?  This list only prints Title, Date, Genre and Format. It will take ",
  .TitleTab = 9, .Title = "Reelora Prima DVD List     ",
  .Format = FormatWord::AsShown, .ClosingRule = true, .TotalTab = 3, .Total = "TOTAL DVD FILM(S)  ", .PageTab = 38,
};
constexpr AbridgedList LaserList = {
  .OnEntry = Entry::ClosesFile, .ViewKind = "Laser",
  .Keys = store::LaserKeys, .CountWord = &RunState::LaserCount,
  .Headline = "All Laser Titles Abridged Print Program",
  .Unsorted = "Laser Records have not been sorted, or there are no records to sort.  Records must be sorted before a report can be written!",
  .Question = "Do you want to print laser disc library?  This list only prints Title, Date, Genre and Format. It will take ",
  .TitleTab = 9, .Title = "Reelora Prima Laser List    ",
  .Format = FormatWord::AlwaysLaser, .ClosingRule = true, .TotalTab = 1, .Total = "TOTAL LASER FILM(S)  ", .PageTab = 38,
};
constexpr AbridgedList VhsList = {
  .OnEntry = Entry::ClosesFile, .ViewKind = "VHS",
  .Keys = store::VHSKeys, .CountWord = &RunState::VHSCount,
  .Headline = "All VHS Titles Abridged Print Program",
  .Unsorted = "VHS Records have not been sorted, or there are no records to sort.  Records must be sorted before a report can be written!",
  .Question = "Do you want to print VHS library?  This list only prints Title, Date, Genre and Format. It will take ",
  .TitleTab = 9, .Title = "Reelora Prima VHS List   ",
  .Format = FormatWord::AsShown, .ClosingRule = false, .TotalTab = 1, .Total = "TOTAL VHS FILM(S) ", .PageTab = 38,
};
// clang-format on

void AbridgedReport::Run() {
  Enter();
  if (!Sorted()) return;
  Page.PrintPending = 1;
  Page.FirstRecordAdjust = 1;
  Page.RowCursor = 0;
  if (Confirm(list_.Question)) PrintPages();
}

void AbridgedReport::Enter() {
  bool keeps_file = list_.OnEntry == Entry::ClosesFileOfOtherViews && Page.ViewKind == "DVD";
  if (list_.OnEntry != Entry::LeavesFile && !keeps_file) Page.Files.Close(KeyFileNo);
  Page.*list_.CountWord = Page.ReadOneItem(CountFileNo, list_.Keys.CountFile);
  Page.ViewKind = list_.ViewKind;
  Page.lblHead.SetCaption(list_.Headline);
}

// Pages are estimated even if the list is then refused.
bool AbridgedReport::Sorted() {
  const screen::Text& count = Page.*list_.CountWord;
  Page.ListKeyCount = std::max(runtime::RoundToInt32(runtime::NumericValue(count)), KeysPerPage);
  Estimate(static_cast<double>(Page.ListKeyCount) / KeysPerPage);
  if (count != "0") return true;
  Page.Desk.MessageBox(forms::Icon::Warning, PrintBoxTitle, list_.Unsorted);
  Page.cmdReset_Click();
  return false;
}

void AbridgedReport::PrintPages() {
  while (true) {
    PrintPageHead();
    do {
      if (!NextFilm(list_.Keys.Name)) return PrintEnd();
      LoadFilm();
      Page.ShowRecord();
      PrintFilm();
    } while (LineCount < LastLine);
    PrintRule();
    LineCount += 1;
    FeedUpTo(LastLine);
    PrintPageNumber(list_.PageTab);
    TurnPage();
  }
}

void AbridgedReport::PrintPageHead() {
  FeedLines(1);
  SetUpFont();
  PrintHeading(list_.TitleTab, list_.Title);
  LineCount += 6;
  FeedLines(1);
  if (Page.FirstRecordAdjust == 1) {
    Paper.SetUnderline(true);
    Paper.Print({runtime::Tab{3}, ColumnHeads});
    LineCount += 2;
    Paper.SetUnderline(false);
    Paper.PrintEmpty();
  }
  Page.FirstRecordAdjust = 0;
}

// A row starts at column 1, its heading at column 3; the other columns match.
void AbridgedReport::PrintFilm() {
  bool letter = Page.txtFormat.Text() == store::FormatLaser ||
                Page.CurrentFilm.Get(store::FilmField::Format) == store::FormatLaser;
  if (list_.Format == FormatWord::AlwaysLaser || (list_.Format == FormatWord::LaserForL && letter))
    Page.txtFormat.SetText(*store::WordOf(store::Formats, store::FormatLaser));
  Paper.Print({runtime::Trim(Page.txtTitle.Text()), runtime::Tab{44}, runtime::Trim(Page.txtYear.Text()),
               runtime::Tab{53}, Page.txtGenreList.Text(), runtime::Tab{75}, Page.txtFormat.Text()});
  LineCount += 1;
  Page.RowCursor += 1;
}

void AbridgedReport::PrintEnd() {
  if (list_.ClosingRule) PrintRule();
  Paper.PrintEmpty();
  LineCount += 1;
  Paper.Print({runtime::Tab{list_.TotalTab}, list_.Total, runtime::NumberItem{Page.RowCursor}});
  FeedUpTo(LastLine);
  PrintPageNumber(list_.PageTab);
  Release(list_.Title);
  Page.Desk.Beep();
  Close({});
}

}  // namespace reports
