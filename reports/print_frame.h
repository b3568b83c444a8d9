// What the eight reports share: walking a key file, page layout, the page estimate and the closing box. A report shows
// each film on the record screen and prints what the boxes then contain.
#pragma once

#include <string>
#include <string_view>

#include "runtime/checked_int.h"
#include "runtime/printer.h"
#include "screen/frmPage1.h"

namespace reports {

// The title of the questions, the input boxes and most messages of the reports.
inline constexpr std::string_view PrintBoxTitle = "Reelora Prima Print Program";

// The texts of the box that closes a report. OnePage: what follows the figure if one page was printed.
struct Closing {
  std::string_view EndText = "End of file!   Please wait. ";
  std::string_view OnePage = " page to print.";
  std::string_view BoxTitle = PrintBoxTitle;
};

class PrintFrame {
 protected:
  explicit PrintFrame(frmPage1& page) : Page(page), Paper(page.Printer) {}

  // Sets the page estimate, at least 1, that Confirm shows. Below 1 the words after it stay as the last report left
  // them.
  void Estimate(double pages);
  // Asks whether to print. The question ends with the first five characters of the estimate and its words.
  bool Confirm(std::string_view question);

  // Opens the key file, or continues at KeyFilePos if that is set. False if the file has no keys.
  bool OpenKeys(std::string_view key_file);
  // Keys in the open file; a partial key counts as a fraction.
  double Keys() const;
  // Whether the walk is past the last key.
  bool PastLastKey() const { return Keys() + 1 == static_cast<double>(Page.KeyFilePos); }
  // Puts the record number of the key into ScanRecNo and advances.
  void TakeKey();
  // All three steps, for a report that prints every film of the file. False at its end.
  bool NextFilm(std::string_view key_file);
  // Makes record ScanRecNo the current film without showing it.
  void LoadFilm();

  // Courier New, 12 points, bold: the font of every line of every report.
  void SetUpFont();
  // Does nothing for a count of 0 or less.
  void FeedLines(std::int64_t count);
  void FeedUpTo(std::int64_t line_count) { FeedLines(line_count - LineCount); }
  // The title, then date and time.
  void PrintHeading(int tab, std::string_view title);
  void PrintRule();
  void PrintPageNumber(int tab);
  // Starts the next page.
  void TurnPage();

  // Sends the job to the printer under this title.
  void Release(std::string_view title);
  // Shows the closing box and runs Reset.
  void Close(const Closing& closing);

  frmPage1& Page;
  runtime::Printer& Paper;
  // The report's own count, not the lines printed. It decides how many films fit on a page.
  runtime::Int16 LineCount;

 private:
  double keys_ = 0;  // Keys() when the first was taken
};

}  // namespace reports
