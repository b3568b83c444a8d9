// Each line of a film is a table of cells: a column, a box, and the words around its text.
#include "reports/full_list.h"

#include <span>
#include <vector>

#include "store/film_codes.h"
#include "store/key_file.h"

using screen::PageControls;

namespace reports {
namespace {

constexpr std::string_view Title = "Reelora Prima All Titles Full List  ";
constexpr double FilmsPerPage = 8;
constexpr int LastLine = 55;
constexpr int FootLine = 56;
constexpr Closing FullListClosing{"End of file!   please wait. ", " Page to print.", PrintBoxTitle};

// Box: nullptr if the words stand alone; its text is printed trimmed.
struct Cell {
  int Column;
  std::string_view Lead;
  forms::TextBox PageControls::*Box;
  std::string_view Tail{};
};
// The line that depends on the format. The small differences in wording are on purpose.
struct FormatLine {
  std::string_view Format;
  Cell Cells[5];
};

// clang-format off
constexpr Cell SecondLine[] = {
  {  3, "", &PageControls::txtStar1 }, { 34, "", &PageControls::txtStar2 },
  { 64, "", &PageControls::txtTime, " mins." }, { 73, "", &PageControls::txtYear },
};
constexpr Cell ThirdLine[] = {
  {  3, "", &PageControls::txtStar3 }, { 34, "", &PageControls::txtStar4 },
  { 64, "", &PageControls::txtColor1 }, { 70, "", &PageControls::txtLetter },
};
constexpr Cell FourthLine[] = {
  {  3, "", &PageControls::txtStar5 }, { 34, "", &PageControls::txtStar6 },
  { 64, "", &PageControls::txtGenreList },
};
constexpr FormatLine FormatLines[] = {
  { store::FormatDVD,   { {  3, "Label:", &PageControls::txtLabel },  { 25, "DVD ",     &PageControls::txtNumReel, "Disc(s)" },
                          { 43, "MPAA :", &PageControls::txtRating }, { 55, "DVD Disc", nullptr },
                          { 70, "SND",    &PageControls::txtSound } } },
  { store::FormatLaser, { {  3, "Label:", &PageControls::txtLabel },  { 25, "Laser ",   &PageControls::txtNumReel, " Disc(s)" },
                          { 43, "MPAA :", &PageControls::txtRating }, { 55, "",         &PageControls::txtCLV1 },
                          { 70, "SND: ",  &PageControls::txtSound } } },
  { store::FormatVHS,   { {  3, "Label:", &PageControls::txtLabel },  { 25, "VHS ",     &PageControls::txtNumReel, " Cass(s)." },
                          { 43, "MPAA :", &PageControls::txtRating }, { 55, "Cass# ",   &PageControls::txtCassNo },
                          { 70, "SND: ",  &PageControls::txtSound } } },
};
// clang-format on

void PrintCells(const frmPage1& page, runtime::Printer& paper, std::span<const Cell> cells) {
  std::vector<runtime::PrintItem> items;
  items.reserve(4 * cells.size());
  for (const Cell& cell : cells) {
    std::string_view text = cell.Box ? runtime::Trim((page.*cell.Box).Text()) : std::string_view();
    items.insert(items.end(), {runtime::Tab{cell.Column}, cell.Lead, text, cell.Tail});
  }
  paper.Print(items);
}

}  // namespace

void FullList::Run() {
  Page.ViewKind = "Title";
  Page.lblHead.SetCaption("All Titles Full List Print Program");
  Estimate(static_cast<double>(Page.RecordCount) / FilmsPerPage);
  Page.PrintPending = 1;
  Page.RowCursor = 0;
  if (!Confirm("If you have added any new records be sure to sort files before printing!\n\n"
               "Are you sure you want to print all titles? The full list will take "))
    return;
  Page.ScanRecNo = 0;
  while (true) {
    PrintPageHead();
    do {
      if (!NextFilm(store::TitleKeys.Name)) return PrintEnd();
      LoadFilm();
      Page.ShowRecord();
      PrintFilm();
    } while (LineCount < LastLine);
    FeedUpTo(FootLine);
    PrintPageNumber(38);
    TurnPage();
  }
}

void FullList::PrintPageHead() {
  FeedLines(1);
  SetUpFont();
  PrintHeading(4, Title);
  LineCount += 6;
  Paper.PrintEmpty();
  LineCount += 1;
  PrintRule();
  LineCount += 1;
}

// Rating and notes are printed as the record contains them. The notes keep their padding, so that the last line is
// underlined over its full width.
void FullList::PrintFilm() {
  Page.txtRating.SetText(Page.CurrentFilm.Get(store::FilmField::Rating));
  Page.txtAwards.SetText(Page.CurrentFilm.Get(store::FilmField::Awards));
  Paper.Print({runtime::Tab{3}, runtime::Trim(Page.txtTitle.Text()), runtime::Tab{34},
               runtime::Trim(Page.txtDirector.Text()), " (Dir.)", runtime::Tab{72}, "REC #",
               std::to_string(Page.CurrentRecNo)});
  Page.RowCursor += 1;
  PrintCells(Page, Paper, SecondLine);
  PrintCells(Page, Paper, ThirdLine);
  PrintCells(Page, Paper, FourthLine);
  LineCount += 4;
  for (const FormatLine& line : FormatLines) {
    if (Page.txtFormat.Text() != store::WordOf(store::Formats, line.Format)) continue;
    PrintCells(Page, Paper, line.Cells);
    LineCount += 1;
  }
  Paper.SetUnderline(true);
  Paper.Print({runtime::Tab{3}, "Notes/Awards: ", Page.txtAwards.Text(), runtime::Tab{77}, ":  "});
  Paper.SetUnderline(false);
  LineCount += 1;
}

void FullList::PrintEnd() {
  Paper.PrintEmpty();
  Paper.Print({runtime::Tab{3}, "TOTAL FILM(S) IN LIBRARY", "  ", runtime::NumberItem{Page.RowCursor}});
  Paper.PrintEmpty();
  PrintPageNumber(38);
  Release(Title);
  Page.Desk.Beep();
  Close(FullListClosing);
}

}  // namespace reports
