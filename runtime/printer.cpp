// Lines are built in one buffer and stored at their exact length.
#include "runtime/printer.h"

#include <utility>

#include "runtime/text.h"

namespace runtime {

void Printer::SetFont(std::string_view name, int size) {
  job_.FontName = name;
  job_.FontSize = size;
}

void Printer::Print(std::span<const PrintItem> items) {
  for (const PrintItem& item : items) {
    if (const auto* tab = std::get_if<Tab>(&item)) {
      GoTo(tab->Column);
    } else if (const auto* text = std::get_if<std::string_view>(&item)) {
      Put(*text);
    } else {
      Put(NumberText(std::get<NumberItem>(item).Value) + ' ');
    }
  }
  EndLine();
}

void Printer::CarriageReturn() { EndLine(); }

void Printer::NewPage() {
  Page();
  job_.Pages.emplace_back();
}

PrintJob Printer::EndDocument(std::string_view title) {
  PrintJob job = std::exchange(job_, {});
  SetFont(job.FontName, job.FontSize);
  job.Title = title;
  return job;
}

void Printer::GoTo(int column) {
  if (position_ > column) EndLine();
  position_ = column;
}

void Printer::Put(std::string_view text) {
  if (text.empty()) return;
  if (from_ == 0) from_ = position_;
  line_.resize(static_cast<std::size_t>(position_ - from_), ' ');
  line_ += text;
  position_ += static_cast<int>(text.size());
}

void Printer::EndLine() {
  PrintedLine& line = Page().Lines.emplace_back();
  if (from_ > 0) {
    line.Text = line_;
    line.From = static_cast<std::uint16_t>(from_);
    line.Bold = bold_;
    line.Underline = underline_;
  }
  line_.clear();
  from_ = 0;
  position_ = 1;
}

PrintedPage& Printer::Page() {
  if (job_.Pages.empty()) job_.Pages.emplace_back();
  return job_.Pages.back();
}

}  // namespace runtime
