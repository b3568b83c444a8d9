#include "companion/table.h"

#include <algorithm>

#include "companion/printable.h"

namespace companion {
namespace {

using Row = std::vector<std::string>;

constexpr std::size_t Between = 2;  // blanks between columns
constexpr std::size_t Narrowest = 4;

Row Headings(const std::vector<Column>& columns) {
  Row headings;
  headings.reserve(columns.size());
  for (const Column& column : columns) headings.push_back(column.Heading);
  return headings;
}

std::vector<std::size_t> Widths(const std::vector<Column>& columns, const std::vector<Row>& rows) {
  std::vector<std::size_t> widths;
  widths.reserve(columns.size());
  for (const Column& column : columns) widths.push_back(Width(column.Heading));
  for (const Row& row : rows) {
    for (std::size_t at = 0; at < widths.size(); ++at) widths[at] = std::max(widths[at], Width(row[at]));
  }
  return widths;
}

// The widest column loses one at a time.
void Narrow(std::vector<std::size_t>& widths, std::size_t room) {
  std::size_t total = Between * (widths.size() - 1);
  for (std::size_t width : widths) total += width;
  while (total > room) {
    const auto widest = std::max_element(widths.begin(), widths.end());
    if (*widest <= Narrowest) return;
    *widest -= 1;
    total -= 1;
  }
}

void PrintRow(const std::vector<Column>& columns, const std::vector<std::size_t>& widths, const Row& row,
              std::ostream& text) {
  std::string line;
  for (std::size_t at = 0; at < columns.size(); ++at) {
    if (at > 0) line.append(Between, ' ');
    const std::size_t width = Width(row[at]);
    if (columns[at].Right && width < widths[at])
      line.append(widths[at] - width, ' ').append(row[at]);
    else
      line += Padded(row[at], widths[at]);
  }
  text << line.substr(0, line.find_last_not_of(' ') + 1) << "\n";
}

}  // namespace

void PrintTable(const std::vector<Column>& columns, const std::vector<Row>& rows, std::size_t terminal_columns,
                std::ostream& text) {
  std::vector<std::size_t> widths = Widths(columns, rows);
  Narrow(widths, terminal_columns);
  PrintRow(columns, widths, Headings(columns), text);
  for (const Row& row : rows) PrintRow(columns, widths, row, text);
}

void PrintTabs(const std::vector<Column>& columns, const std::vector<Row>& rows, std::ostream& text) {
  const auto print = [&](const Row& row) {
    for (std::size_t at = 0; at < row.size(); ++at) text << (at > 0 ? "\t" : "") << row[at];
    text << "\n";
  };
  print(Headings(columns));
  for (const Row& row : rows) print(row);
}

}  // namespace companion
