// Rows of texts: aligned for a terminal, separated by tabs for scripts.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace companion {

struct Column {
  std::string Heading;
  bool Right = false;  // aligned, for numbers
};

// Cells are UTF-8 without control characters. The widest cells are cut until a row fits the terminal.
void PrintTable(const std::vector<Column>& columns, const std::vector<std::vector<std::string>>& rows,
                std::size_t terminal_columns, std::ostream& text);
void PrintTabs(const std::vector<Column>& columns, const std::vector<std::vector<std::string>>& rows,
               std::ostream& text);

}  // namespace companion
