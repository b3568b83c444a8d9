// The director, star and genre lists: one line for each film of the all-formats key file whose field holds the text
// that was asked for.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "reports/print_frame.h"
#include "store/film_codes.h"

namespace reports {

// A field that is searched: where it was hit, from 1, and the box that names the hit.
struct SearchedField {
  store::FilmField Field;
  screen::Number16 screen::RunState::*Hit;
  forms::TextBox screen::Page1Controls::*Box;
};

enum class TitleAt { FirstMatch, Start };

// Everything in which the three lists differ.
struct QueryList {
  std::string_view ViewKind;  // "" leaves it unchanged
  std::string_view Headline;
  std::string_view Prompt;
  screen::Text screen::RunState::*Query;
  std::span<const SearchedField> Fields;
  std::span<const store::GenreRow> QueryNames;  // codes whose words go to GenreQueryName
  std::string_view WaitCaption;                 // lblHead from the first match on, "" leaves it

  TitleAt TitleTime;
  int TitleFeeds;  // before and behind the title
  int TitleTab;
  std::string_view Title;
  int FeedsBehindTitle;
  int LinesOfTop;  // LineCount before the heading

  int HeadingWidth;  // the name's length taken off, and halved: the heading's column, and HeadingShift on
  int HeadingShift;
  std::string_view HeadingLead;
  std::string_view HeadingTail;
  int LinesOfHeading;

  bool FootRule;
  int NextTitleTab;  // the title on the pages behind the first; 0 for none

  std::string_view NotFoundLead;
  std::string (*NotFoundName)(const frmPage1& page, std::string_view query);
  std::string_view NotFoundTail;

  std::string (*Total)(std::string_view lead, std::string_view name, std::int64_t films);
  std::string_view TotalLead;
  int LinesOfTotal;
  Closing End;
};

extern const QueryList DirectorList, StarList, GenreList;

class QueryReport : PrintFrame {
 public:
  QueryReport(frmPage1& page, const QueryList& list) : PrintFrame(page), list_(list) {}
  void Run();

 private:
  enum class Key { Taken, NothingFound, Last };
  bool Enter();
  Key NextKey();
  void LookUpName();
  bool Matches();
  void PrintMatch();
  void PrintTitle();
  void PrintTop();
  void TurnToNextPage();
  void RefuseNotFound();
  void PrintEnd();

  const QueryList& list_;
  // That of the last match.
  std::string name_;
};

}  // namespace reports
