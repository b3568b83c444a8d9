// One run for the three lists over the table of their differences.
#include "reports/query_list.h"

using screen::Page1Controls;
using screen::RunState;
using store::FilmField;

namespace reports {
namespace {

constexpr std::string_view KeyFile = "Titlepra.Dat";
constexpr int LastLine = 56;
constexpr int PageTab = 38;

constexpr std::string_view ColumnHeads =
    "Title                                   Date   Genre                 Format ";

// clang-format off
constexpr SearchedField DirectorFields[] = {
  { FilmField::Director, &RunState::MatchPos, &Page1Controls::txtDirector },
};
constexpr SearchedField StarFields[] = {
  { FilmField::Star1, &RunState::MatchPos, &Page1Controls::txtStar1 },
  { FilmField::Star2, &RunState::StarHit2, &Page1Controls::txtStar2 },
  { FilmField::Star3, &RunState::StarHit3, &Page1Controls::txtStar3 },
  { FilmField::Star4, &RunState::StarHit4, &Page1Controls::txtStar4 },
  { FilmField::Star5, &RunState::StarHit5, &Page1Controls::txtStar5 },
  { FilmField::Star6, &RunState::StarHit6, &Page1Controls::txtStar6 },
};
constexpr SearchedField GenreFields[] = {
  { FilmField::Genre, &RunState::MatchPos, &Page1Controls::txtGenreList },
};
// clang-format on

std::string QueryInCapitals(const frmPage1&, std::string_view query) { return runtime::Upper(query); }

std::string NameOfGenre(const frmPage1& page, std::string_view) { return page.GenreQueryName.Value(); }

std::string TotalOfName(std::string_view lead, std::string_view name, std::int64_t films) {
  return std::string(lead) + runtime::Upper(name) + " IN YOUR COLLECTION IS " + std::to_string(films) + ".";
}

std::string TotalOfGenre(std::string_view lead, std::string_view name, std::int64_t films) {
  return std::string(lead).append(name) + " Films " + runtime::S(films) + " ";
}

// The words of a genre in this report are those of the pick list, behind "XX = ".
std::string_view WordsOf(const store::GenreRow& genre) { return genre.ListItem.substr(genre.Code.size() + 3); }

}  // namespace

// clang-format off
constexpr QueryList DirectorList = {
  .ViewKind = "Title", .Headline = "Director Search Print Program",
  .Prompt = "Enter Director's Last Name. To Print List: ",
  .Query = &RunState::DirectorQuery, .Fields = DirectorFields, .QueryNames = {}, .WaitCaption = "",
  .TitleTime = TitleAt::FirstMatch, .TitleFeeds = 0, .TitleTab = 9, .Title = "Reelora Prima Directors List   ", .FeedsBehindTitle = 0,
  .LinesOfTop = 9,
  .HeadingWidth = 61, .HeadingShift = 3, .HeadingLead = "Films Directed by ", .HeadingTail = "", .LinesOfHeading = 2,
  .FootRule = true, .NextTitleTab = 15,
  .NotFoundLead = "No films directed by ", .NotFoundName = QueryInCapitals, .NotFoundTail = " found!",
  .Total = TotalOfName, .TotalLead = "TOTAL FILM(S) DIRECTED BY ", .LinesOfTotal = 0, .End = {},
};
constexpr QueryList StarList = {
  .ViewKind = "", .Headline = "Star Search Print Program",
  .Prompt = "Enter Star's Last Name. To Print List: ",
  .Query = &RunState::StarQuery, .Fields = StarFields, .QueryNames = {}, .WaitCaption = "Please Wait Print Spooler is loading Files",
  .TitleTime = TitleAt::Start, .TitleFeeds = 2, .TitleTab = 9, .Title = "Reelora Prima Stars List   ", .FeedsBehindTitle = 2,
  .LinesOfTop = 10,
  .HeadingWidth = 61, .HeadingShift = 3, .HeadingLead = "Films starring ", .HeadingTail = "", .LinesOfHeading = 1,
  .FootRule = false, .NextTitleTab = 0,
  .NotFoundLead = "No films Staring ", .NotFoundName = QueryInCapitals, .NotFoundTail = " found!",
  .Total = TotalOfName, .TotalLead = "TOTAL FILM(S) STARRING ", .LinesOfTotal = 1, .End = {},
};
// The heading's 5 and the empty line's 1.
constexpr QueryList GenreList = {
  .ViewKind = "Title", .Headline = "Genre Search Print Program",
  .Prompt = "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   Animation\r\nCO   Comedy\r\n"
            " See Genre List for more Abbrs.",
  .Query = &RunState::GenreFilter, .Fields = GenreFields, .QueryNames = store::Genres, .WaitCaption = "",
  .TitleTime = TitleAt::Start, .TitleFeeds = 2, .TitleTab = 8, .Title = "Reelora Prima Genre List   ", .FeedsBehindTitle = 1,
  .LinesOfTop = 7,
  .HeadingWidth = 62, .HeadingShift = 0, .HeadingLead = "A list of ", .HeadingTail = " Films", .LinesOfHeading = 6,
  .FootRule = true, .NextTitleTab = 0,
  .NotFoundLead = "No  ", .NotFoundName = NameOfGenre, .NotFoundTail = " genre found!",
  .Total = TotalOfGenre, .TotalLead = "TOTAL ", .LinesOfTotal = 0,
  .End = {"End of file! Please wait.  ", " page to print.", "Reelora Print Program"},
};
// clang-format on

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

// Nothing is found when the last key is reached, before that key itself is compared: a film that only the last key leads
// to is not found.
QueryReport::Key QueryReport::NextKey() {
  if (!OpenKeys(KeyFile)) return Key::Taken;
  Page.ReadKeyPastBlank();
  LookUpName();
  if (Keys() == static_cast<double>(Page.KeyFilePos) && Page.RowCursor == 0) return Key::NothingFound;
  if (PastLastKey()) return Key::Last;
  TakeKey();
  return Key::Taken;
}

// The query is looked up as it stands at this moment: small letters are no code before the first film made them capital.
void QueryReport::LookUpName() {
  for (const store::GenreRow& genre : list_.QueryNames) {
    if (Page.*list_.Query == genre.Code) Page.GenreQueryName = WordsOf(genre);
  }
}

bool QueryReport::Matches() {
  screen::Text& query = Page.*list_.Query;
  query = runtime::Upper(query);
  bool found = false;
  for (const SearchedField& searched : list_.Fields) {
    std::string field = runtime::Upper(runtime::Trim(Page.CurrentFilm.Get(searched.Field)));
    Page.*searched.Hit = static_cast<std::int64_t>(runtime::Position(field, query));
    found = found || Page.*searched.Hit >= 1;
  }
  return found;
}

void QueryReport::PrintMatch() {
  Page.ShowRecord();
  Page.FirstRecordAdjust += 1;
  for (const SearchedField& searched : list_.Fields) {
    if (Page.*searched.Hit >= 1) name_ = runtime::Trim((Page.*searched.Box).Text());
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
  FeedLines(list_.TitleFeeds);
  PrintHeading(list_.TitleTab, list_.Title);
  FeedLines(list_.FeedsBehindTitle);
}

// What stands above the first film.
void QueryReport::PrintTop() {
  if (list_.TitleTime == TitleAt::FirstMatch) PrintTitle();
  LineCount += list_.LinesOfTop;
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

// What was printed already stays in the job, which the next report goes on with.
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
