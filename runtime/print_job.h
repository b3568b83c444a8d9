// A job for the printer: pages of styled text lines on a grid of character cells, with no toolkit.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace runtime {

// One style for the whole line, as small as its text allows: a job may hold a million of them.
struct PrintedLine {
  // The cells from column From (from 1) on, one byte each; those that a Tab passed over hold blanks. An underline runs
  // below exactly these cells.
  std::string Text;
  std::uint16_t From = 1;
  bool Bold = false;
  bool Underline = false;

  // The whole line from column 1, blanks at its end left out.
  std::string PlainText() const;
};

struct PrintedPage {
  // Up to the last line that holds text or was fed.
  std::vector<PrintedLine> Lines;
};

struct PrintJob {
  // What the document is called in a queue or a folder.
  std::string Title;
  std::string FontName;
  int FontSize = 0;  // points
  std::vector<PrintedPage> Pages;
};

}  // namespace runtime
