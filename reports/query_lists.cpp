// The table of the three lists.
#include "reports/query_list.h"

using screen::PageControls;
using screen::RunState;
using store::FilmField;

namespace reports {
namespace {

// clang-format off
constexpr SearchedField DirectorFields[] = {
  { FilmField::Director, &PageControls::txtDirector },
};
constexpr SearchedField StarFields[] = {
  { FilmField::Star1, &PageControls::txtStar1 },
  { FilmField::Star2, &PageControls::txtStar2 },
  { FilmField::Star3, &PageControls::txtStar3 },
  { FilmField::Star4, &PageControls::txtStar4 },
  { FilmField::Star5, &PageControls::txtStar5 },
  { FilmField::Star6, &PageControls::txtStar6 },
};
constexpr SearchedField GenreFields[] = {
  { FilmField::Genre, &PageControls::txtGenreList },
};
// clang-format on

std::string QueryInCapitals(const frmPage1&, std::string_view query) { return runtime::Upper(query); }

std::string NameOfGenre(const frmPage1& page, std::string_view) { return page.GenreQueryName.Value(); }

std::string TotalOfName(std::string_view lead, std::string_view name, std::int64_t films) {
  return std::string(lead) + runtime::Upper(name) + " IN YOUR COLLECTION IS " + std::to_string(films) + ".";
}

std::string TotalOfGenre(std::string_view lead, std::string_view name, std::int64_t films) {
  return std::string(lead).append(name) + " Films " + runtime::NumberText(films) + " ";
}

}  // namespace

// clang-format off
constexpr QueryList DirectorList = {
  .ViewKind = "Title", .Headline = "Director Search Print Program",
  .Prompt = "Enter Director's Last Name. To Print List: ",
  .Query = &RunState::DirectorQuery, .Fields = DirectorFields, .QueryNames = {}, .WaitCaption = "",
  .TitleTime = TitleAt::FirstMatch, .FeedsBeforeTitle = 0, .TitleTab = 9, .Title = "Reelora Prima Directors List   ", .FeedsAfterTitle = 0,
  .LinesOfTitle = 9,
  .HeadingWidth = 61, .HeadingShift = 3, .HeadingLead = "Films Directed by ", .HeadingTail = "", .LinesOfHeading = 2,
  .FootRule = true, .NextTitleTab = 15,
  .NotFoundLead = "No films directed by ", .NotFoundName = QueryInCapitals, .NotFoundTail = " found!",
  .Total = TotalOfName, .TotalLead = "TOTAL FILM(S) DIRECTED BY ", .LinesOfTotal = 0, .End = {},
};
constexpr QueryList StarList = {
  .ViewKind = "", .Headline = "Star Search Print Program",
  .Prompt = "Enter Star's Last Name. To Print List: ",
  .Query = &RunState::StarQuery, .Fields = StarFields, .QueryNames = {}, .WaitCaption = "Please Wait Print Spooler is loading Files",
  .TitleTime = TitleAt::Start, .FeedsBeforeTitle = 2, .TitleTab = 9, .Title = "Reelora Prima Stars List   ", .FeedsAfterTitle = 2,
  .LinesOfTitle = 10,
  .HeadingWidth = 61, .HeadingShift = 3, .HeadingLead = "Films starring ", .HeadingTail = "", .LinesOfHeading = 1,
  .FootRule = false, .NextTitleTab = 0,
  .NotFoundLead = "No films Staring ", .NotFoundName = QueryInCapitals, .NotFoundTail = " found!",
  .Total = TotalOfName, .TotalLead = "TOTAL FILM(S) STARRING ", .LinesOfTotal = 1, .End = {},
};
// LinesOfHeading: 5 for the heading, 1 for the empty line.
constexpr QueryList GenreList = {
  .ViewKind = "Title", .Headline = "Genre Search Print Program",
  .Prompt = "Enter Genre. Use Abbr.\r\nAA   Action Adventure\r\nAD   Adult\r\nAN   Animation\r\nCO   Comedy\r\n"
            " See Genre List for more Abbrs.",
  .Query = &RunState::GenreFilter, .Fields = GenreFields, .QueryNames = store::Genres, .WaitCaption = "",
  .TitleTime = TitleAt::Start, .FeedsBeforeTitle = 2, .TitleTab = 8, .Title = "Reelora Prima Genre List   ", .FeedsAfterTitle = 1,
  .LinesOfTitle = 7,
  .HeadingWidth = 62, .HeadingShift = 0, .HeadingLead = "A list of ", .HeadingTail = " Films", .LinesOfHeading = 6,
  .FootRule = true, .NextTitleTab = 0,
  .NotFoundLead = "No  ", .NotFoundName = NameOfGenre, .NotFoundTail = " genre found!",
  .Total = TotalOfGenre, .TotalLead = "TOTAL ", .LinesOfTotal = 0,
  .End = {"End of file! Please wait.  ", " page to print.", "Reelora Print Program"},
};
// clang-format on

}  // namespace reports
