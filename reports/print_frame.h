// What the eight reports share: the walk along a key file, the page's feeds, headings and numbers, the questions'
// figures and the way out. A report shows each film on the record screen and prints what then stands in the boxes.
#pragma once

#include <string>
#include <string_view>

#include "runtime/checked_int.h"
#include "runtime/printer.h"
#include "screen/frmPage1.h"

namespace reports {

// The title of the questions, the input boxes and most messages of the reports.
inline constexpr std::string_view PrintBoxTitle = "Reelora Prima Print Program";

// The texts of the box that closes a report. OnePage: what follows the figure where one page was printed.
struct Closing {
  std::string_view EndText = "End of file!   Please wait. ";
  std::string_view OnePage = " page to print.";
  std::string_view BoxTitle = PrintBoxTitle;
};

class PrintFrame {
 protected:
  explicit PrintFrame(frmPage1& page) : Page(page), Paper(page.Printer) {}

  // The figure of the question: films over the films of a page, at least 1. The words behind it change only where the
  // figure is 1 or more, and keep what an earlier report left otherwise.
  void Estimate(double pages);
  // Asks; the first five characters of the figure and the words stand at the end of the question.
  bool Confirm(std::string_view question);

  // Opens the key file unless a position in it is given already, which is then gone on from. Tells whether there are
  // keys.
  bool OpenKeys(std::string_view key_file);
  // Keys of the open file; a trailing part of one counts as that part.
  double Keys() const;
  // Whether the key behind the last one was reached.
  bool PastLastKey() const { return Keys() + 1 == static_cast<double>(Page.KeyFilePos); }
  // The number of the key that was read to ScanRecNo, and one key on.
  void TakeKey();
  // All of that for a report that prints every film of the file: false at its end.
  bool NextFilm(std::string_view key_file);
  // Record ScanRecNo becomes the current film, not yet shown.
  void LoadFilm();

  // Courier New of 12 points, bold: how every line of every report is printed.
  void SetUpFont();
  // Nothing for a count of 0 or below.
  void FeedLines(std::int64_t count);
  void FeedUpTo(std::int64_t line_count) { FeedLines(line_count - LineCount); }
  // The title with date and time behind it.
  void PrintHeading(int tab, std::string_view title);
  void PrintRule();
  void PrintPageNumber(int tab);
  // A fresh page, whose number is one higher.
  void TurnPage();

  // Releases the job under the title of its first line.
  void Release(std::string_view title);
  // The closing box and the Reset; leaves number 2 as that leaves it.
  void Close(const Closing& closing);

  frmPage1& Page;
  runtime::Printer& Paper;
  // Not the lines of the paper: each report counts by sums of its own, which decide how many films a page holds.
  runtime::Int16 LineCount;
};

}  // namespace reports
