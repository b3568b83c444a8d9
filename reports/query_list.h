// The director, star and genre lists: one line for each film of the all-formats key file whose field contains the text
// asked for.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "reports/print_frame.h"
#include "store/film_codes.h"

namespace reports {

// A searched field. Box: shows the name for the heading.
struct SearchedField {
  store::FilmField Field;
  forms::TextBox screen::PageControls::*Box;
};

enum class TitleAt { FirstMatch, Start };

// All differences between the three lists.
struct QueryList {
  std::string_view ViewKind;  // "" leaves it unchanged
  std::string_view Headline;
  std::string_view Prompt;
  screen::Text screen::RunState::*Query;
  std::span<const SearchedField> Fields;
  std::span<const store::GenreRow> QueryNames;  // if a code matches the query, its name goes to GenreQueryName
  std::string_view WaitCaption;                 // lblHead from the first match on; "" leaves it

  TitleAt TitleTime;
  int FeedsBeforeTitle;
  int TitleTab;
  std::string_view Title;
  int FeedsAfterTitle;
  int LinesOfTitle;  // added to LineCount when the title is printed

  int HeadingWidth;  // the heading's column is (HeadingWidth - length of the name) / 2 + HeadingShift
  int HeadingShift;
  std::string_view HeadingLead;
  std::string_view HeadingTail;
  int LinesOfHeading;

  bool FootRule;
  int NextTitleTab;  // of the title on later pages; 0 for no title there

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
  // Position of the query in each field of the current film, from 1; 0 if absent.
  std::array<std::int64_t, 6> hits_{};
  std::string name_;  // from the last match
};

}  // namespace reports
