// A line printer: each Print writes one line. It keeps the job until the document is ended; lines of a job that is
// never ended go into the next.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "runtime/print_job.h"

namespace runtime {

// Moves to that column, from 1, or on the next line if already past it.
struct Tab {
  int Column;
};
// A number, after a blank or its minus sign and before a blank.
struct NumberItem {
  std::int64_t Value;
};
// A text prints unchanged.
using PrintItem = std::variant<Tab, std::string_view, NumberItem>;

class Printer {
 public:
  // Of the whole job, in points.
  void SetFont(std::string_view name, int size);
  // Of the lines to come.
  void SetBold(bool bold) { bold_ = bold; }
  void SetUnderline(bool underline) { underline_ = underline; }

  // Prints one line, empty without items.
  void Print(std::span<const PrintItem> items);
  void Print(std::initializer_list<PrintItem> items) { Print(std::span(items.begin(), items.size())); }
  void PrintEmpty() { Print({}); }
  // Feeds one line.
  void CarriageReturn();
  void NewPage();
  // Returns the job, under that title; the next Print starts another.
  PrintJob EndDocument(std::string_view title);

 private:
  void GoTo(int column);
  void Put(std::string_view text);
  void EndLine();
  PrintedPage& Page();

  PrintJob job_;
  bool bold_ = false;
  bool underline_ = false;
  // The current line from column from_, which is 0 while the line is empty. The position is the column of the next
  // text.
  std::string line_;
  int from_ = 0;
  int position_ = 1;
};

}  // namespace runtime
