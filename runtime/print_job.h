// A print job: pages of styled text lines on a grid of character cells, without a toolkit.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace runtime {

// One style for the whole line. Kept small: a job may have a million lines.
struct PrintedLine {
  // The cells from column From (from 1), one byte each; cells skipped by a Tab are blanks. An underline is below
  // exactly these cells.
  std::string Text;
  std::uint16_t From = 1;
  bool Bold = false;
  bool Underline = false;

  // The whole line from column 1, without trailing blanks.
  std::string PlainText() const;
};

struct PrintedPage {
  // Up to the last line printed or fed.
  std::vector<PrintedLine> Lines;
};

struct PrintJob {
  // The name of the document in a queue or a folder.
  std::string Title;
  std::string FontName;
  int FontSize = 0;  // points
  std::vector<PrintedPage> Pages;
};

}  // namespace runtime
