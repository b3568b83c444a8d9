// One routine for the three lists, one table of their differences.
#include "reports/query_list.h"

#include "store/key_file.h"

namespace reports {
namespace {

constexpr int LastLine = 56;
constexpr int PageTab = 38;

constexpr std::string_view ColumnHeads = "Title                                   Date   Genre                 Format ";

// This report takes the genre's name from the row of the pick list, after "XX = ".
std::string_view PickListName(const store::GenreRow& genre) { return genre.ListItem.substr(genre.Code.size() + 3); }

}  // namespace

void QueryReport::Run() {
  if (!Enter()) return;
  if (list_.TitleTime == TitleAt::Start) PrintTitle();
  while (true) {
    switch (NextKey()) {
      case Key::NothingFound:
        return RefuseNotFound();
      case Key::Last:
        return PrintEnd();
      case Key::Taken:
        break;
    }
    LoadFilm();
    if (!Matches()) continue;
    PrintMatch();
    if (LineCount >= LastLine) TurnToNextPage();
  }
}

bool QueryReport::Enter() {
  Page.Files.Close(KeyFileNo);
  Page.RowCursor = 0;
  Page.PrintPending = 1;
  Page.FirstRecordAdjust = 0;
  Page.lblHead.SetCaption(list_.Headline);
  if (!list_.ViewKind.empty()) Page.ViewKind = list_.ViewKind;
  screen::Text& query = Page.*list_.Query;
  query = Page.Desk.InputBox(PrintBoxTitle, list_.Prompt);
  if (!query.Value().empty()) return true;
  Page.ViewKind = "";
  return false;
}

// If nothing was found by the last key, that key is not compared: a film that only the last key leads to is missed.
QueryReport::Key QueryReport::NextKey() {
  if (!OpenKeys(store::TitleKeys.Name)) return Key::Taken;
  Page.ReadKeyPastBlank();
  LookUpName();
  if (Keys() == static_cast<double>(Page.KeyFilePos) && Page.RowCursor == 0) return Key::NothingFound;
  if (PastLastKey()) return Key::Last;
  TakeKey();
  return Key::Taken;
}

// Looks the query up as it is now, before conversion to capitals: a code in small letters is unknown at the first
// film.
void QueryReport::LookUpName() {
  for (const store::GenreRow& genre : list_.QueryNames) {
    if (Page.*list_.Query == genre.Code) Page.GenreQueryName = PickListName(genre);
  }
}

bool QueryReport::Matches() {
  screen::Text& query = Page.*list_.Query;
  query = runtime::Upper(query);
  bool found = false;
  for (std::size_t at = 0; at < list_.Fields.size(); ++at) {
    std::string field = runtime::Upper(runtime::Trim(Page.CurrentFilm.Get(list_.Fields[at].Field)));
    hits_.at(at) = static_cast<std::int64_t>(runtime::Position(field, query));
    found = found || hits_.at(at) >= 1;
  }
  Page.MatchPos = hits_.front();
  return found;
}

void QueryReport::PrintMatch() {
  Page.ShowRecord();
  Page.FirstRecordAdjust += 1;
  for (std::size_t at = 0; at < list_.Fields.size(); ++at) {
    if (hits_.at(at) >= 1) name_ = runtime::Trim((Page.*list_.Fields[at].Box).Text());
  }
  if (!list_.WaitCaption.empty()) Page.lblHead.SetCaption(list_.WaitCaption);
  SetUpFont();
  if (Page.FirstRecordAdjust == 1) PrintTop();
  Paper.Print({runtime::Tab{3}, runtime::Trim(Page.txtTitle.Text()), runtime::Tab{43},
               runtime::Trim(Page.txtYear.Text()), runtime::Tab{50}, Page.txtGenreList.Text(), runtime::Tab{72},
               Page.txtFormat.Text()});
  LineCount += 1;
  Page.RowCursor += 1;
}

void QueryReport::PrintTitle() {
  SetUpFont();
  FeedLines(list_.FeedsBeforeTitle);
  PrintHeading(list_.TitleTab, list_.Title);
  FeedLines(list_.FeedsAfterTitle);
  LineCount += list_.LinesOfTitle;
}

// The lines above the first film.
void QueryReport::PrintTop() {
  if (list_.TitleTime == TitleAt::FirstMatch) PrintTitle();
  double spare = list_.HeadingWidth - static_cast<double>(name_.size());
  int column = runtime::RoundToInt16(spare / 2) + list_.HeadingShift;
  Paper.Print({runtime::Tab{column}, list_.HeadingLead, name_, list_.HeadingTail});
  LineCount += list_.LinesOfHeading;
  Paper.PrintEmpty();
  Paper.SetUnderline(true);
  Paper.Print({runtime::Tab{3}, ColumnHeads});
  LineCount += 1;
  Paper.SetUnderline(false);
  Paper.PrintEmpty();
}

void QueryReport::TurnToNextPage() {
  if (list_.FootRule) {
    PrintRule();
    LineCount += 1;
  }
  FeedUpTo(54);
  PrintPageNumber(PageTab);
  TurnPage();
  if (list_.NextTitleTab == 0) return;
  FeedLines(2);
  Paper.Print({runtime::Tab{list_.NextTitleTab}, runtime::Trim(list_.Title)});
  LineCount += 3;
  FeedLines(1);
}

// Lines already printed stay in the job; the next report continues it.
void QueryReport::RefuseNotFound() {
  std::string text(list_.NotFoundLead);
  text.append("\"").append(list_.NotFoundName(Page, Page.*list_.Query)).append("\"").append(list_.NotFoundTail);
  Page.Desk.MessageBox(forms::Icon::Warning, PrintBoxTitle, text);
  Page.Files.Close(KeyFileNo);
  Page.KeyFilePos = 0;
  Page.cmdReset_Click();
}

void QueryReport::PrintEnd() {
  Page.Desk.Beep();
  Paper.PrintEmpty();
  LineCount += 1;
  Paper.Print({runtime::Tab{3}, list_.Total(list_.TotalLead, name_, Page.RowCursor)});
  LineCount += list_.LinesOfTotal;
  FeedUpTo(LastLine);
  PrintPageNumber(PageTab);
  Release(list_.Title);
  Close(list_.End);
}

}  // namespace reports
