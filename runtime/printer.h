// The printer as the reports know it: a text surface on which a statement prints a line of items from column 1 of a new
// line on. It keeps the job until the document is ended; a job that is left unended takes what is printed next.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "runtime/print_job.h"

namespace runtime {

// On to that column, from 1, of the line; to that column of the next line where the position stands past it already.
struct Tab {
  int Column;
};
// A number with one blank where a minus sign would stand and one behind it.
struct NumberItem {
  std::int64_t Value;
};
// A text prints as it stands.
using PrintItem = std::variant<Tab, std::string_view, NumberItem>;

class Printer {
 public:
  // For the whole job, in points.
  void SetFont(std::string_view name, int size);
  // For the lines from here on.
  void SetBold(bool bold) { bold_ = bold; }
  void SetUnderline(bool underline) { underline_ = underline; }

  // One line, an empty one without items.
  void Print(std::span<const PrintItem> items);
  void Print(std::initializer_list<PrintItem> items) { Print(std::span(items.begin(), items.size())); }
  void PrintEmpty() { Print({}); }
  // One line on.
  void CarriageReturn();
  void NewPage();
  // The job, under that title; the next statement begins another one.
  PrintJob EndDocument(std::string_view title);

 private:
  void GoTo(int column);
  void Put(std::string_view text);
  void EndLine();
  PrintedPage& Page();

  PrintJob job_;
  bool bold_ = false;
  bool underline_ = false;
  // The cells of the line at hand from column from_ on; 0 while it holds none. The position is the column that the next
  // text begins at.
  std::string line_;
  int from_ = 0;
  int position_ = 1;
};

}  // namespace runtime
