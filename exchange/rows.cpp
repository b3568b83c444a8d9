// Columns by name, cells by column.
#include "exchange/rows.h"

namespace exchange {
namespace {

// More than any field holds, or any list of stars.
constexpr std::size_t LongestCell = 4096;

}  // namespace

std::size_t Rows::Column(std::string_view name) {
  sought_.assign(name);
  const auto found = numbers_.find(sought_);
  if (found != numbers_.end()) return found->second;
  if (names_.size() == MostColumns) return MostColumns;
  numbers_.emplace(sought_, names_.size());
  names_.push_back(sought_);
  cells_.emplace_back();
  return names_.size() - 1;
}

void Rows::Add(std::size_t column, std::string_view text) {
  Cell& cell = cells_[column];
  if (!cell.Given) {
    given_.push_back(column);
  } else if (cell.Text.size() < LongestCell) {
    cell.Text += "; ";
  }
  cell.Given = true;
  if (cell.Text.size() < LongestCell) cell.Text.append(text.substr(0, LongestCell - cell.Text.size()));
}

bool Rows::End() {
  if (given_.empty()) return true;
  const bool more = take_(*this);
  for (std::size_t column : given_) {
    cells_[column].Text.clear();
    cells_[column].Given = false;
  }
  given_.clear();
  return more;
}

}  // namespace exchange
