// The lines of a table are words and texts as any others: each COLUMN ..., then row VALUE ...
#include "tests/story/story_table.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "runtime/code_page.h"

namespace story {
namespace {

struct Table {
  std::vector<std::string> Columns;
  std::vector<std::vector<std::string>> Rows;
};

[[noreturn]] void Fail(const Line& line, std::string_view expected, std::string_view got) {
  throw Difference{line.Number, Differs(expected, got)};
}

bool IsColumnName(const Argument& argument) {
  return argument.As == Argument::Form::Word && argument.Text.find_first_of("{}") == std::string::npos;
}

std::string Values(std::size_t count) { return std::to_string(count) + (count == 1 ? " value" : " values"); }

// Takes one table off the lines, from `at` on.
Table TakeTable(const std::vector<Line>& lines, std::size_t& at) {
  Table table;
  const Line& head = lines[at++];
  for (const Argument& name : head.Arguments) {
    if (!IsColumnName(name)) Fail(head, "the name of a column", Notation(name));
    table.Columns.push_back(name.Text);
  }
  if (table.Columns.empty()) Fail(head, "the names of columns", "none");
  for (; at < lines.size() && lines[at].Verb == "row"; ++at) {
    const Line& line = lines[at];
    if (line.Arguments.size() != table.Columns.size())
      Fail(line, Values(table.Columns.size()), Values(line.Arguments.size()));
    std::vector<std::string>& row = table.Rows.emplace_back();
    for (const Argument& value : line.Arguments) {
      if (value.As == Argument::Form::Field) Fail(line, "a word or a text", Notation(value));
      row.push_back(value.Text);
    }
  }
  if (table.Rows.empty()) Fail(head, "rows below the columns", "none");
  return table;
}

// Puts the columns of a further table to the right of the first one's; both begin with the same column.
void Join(Table& table, const Table& more, const Line& head) {
  auto first = [](const Table& of) {
    std::vector<std::string> names = {of.Columns[0]};
    for (const auto& row : of.Rows) names.push_back(row[0]);
    return names;
  };
  if (first(table) != first(more)) Fail(head, "the first column and the rows of the table above", "others");
  table.Columns.insert(table.Columns.end(), more.Columns.begin() + 1, more.Columns.end());
  for (std::size_t index = 0; index < table.Rows.size(); ++index)
    table.Rows[index].insert(table.Rows[index].end(), more.Rows[index].begin() + 1, more.Rows[index].end());
}

void CheckNames(const Table& table, const Line& head) {
  std::set<std::string> columns, rows;
  for (const std::string& name : table.Columns) {
    if (!columns.insert(name).second) Fail(head, "columns of different names", "two named " + name);
  }
  for (const auto& row : table.Rows) {
    if (!rows.insert(row[0]).second) Fail(head, "rows of different names", "two named " + runtime::ToUtf8(row[0]));
  }
}

// Puts the values of one row in place of {COLUMN}, and keeps which columns were used.
class Filler {
 public:
  explicit Filler(const Table& table) : table_(table) {}

  Line Fill(Line line, const std::vector<std::string>& row) {
    line.Verb = Filled(line, line.Verb, row);
    for (Argument& argument : line.Arguments) {
      argument.Text = Filled(line, argument.Text, row);
      argument.Field = Filled(line, argument.Field, row);
    }
    return line;
  }

  bool Used(const std::string& column) const { return used_.contains(column); }

 private:
  std::string Filled(const Line& line, std::string_view text, const std::vector<std::string>& row) {
    std::string filled;
    for (std::size_t open = text.find('{'); open != std::string_view::npos; open = text.find('{')) {
      filled += text.substr(0, open);
      text.remove_prefix(open + 1);
      std::string name(text.substr(0, text.find('}')));
      auto column = std::find(table_.Columns.begin(), table_.Columns.end(), name);
      if (column == table_.Columns.end() || name.size() == text.size())
        Fail(line, "a column of the table in braces", "{" + runtime::ToUtf8(text.substr(0, name.size() + 1)));
      used_.insert(name);
      filled += row[static_cast<std::size_t>(column - table_.Columns.begin())];
      text.remove_prefix(name.size() + 1);
    }
    return filled.append(text);
  }

  const Table& table_;
  std::set<std::string> used_;
};

}  // namespace

std::vector<Story> ExpandTable(std::vector<Line> lines) {
  if (lines.empty() || lines[0].Verb != "each") return {{"", std::move(lines)}};
  std::size_t at = 0;
  Table table = TakeTable(lines, at);
  while (at < lines.size() && lines[at].Verb == "each") {
    const Line& head = lines[at];
    Join(table, TakeTable(lines, at), head);
  }
  CheckNames(table, lines[0]);
  Filler filler(table);
  std::vector<Story> stories;
  for (const auto& row : table.Rows) {
    Story& one = stories.emplace_back(Story{runtime::ToUtf8(row[0]), {}});
    for (std::size_t index = at; index < lines.size(); ++index) one.Lines.push_back(filler.Fill(lines[index], row));
  }
  for (const std::string& column : table.Columns) {
    bool names_only = column == table.Columns[0] && table.Columns.size() > 1;
    if (!names_only && !filler.Used(column)) Fail(lines[0], "{" + column + "} in a line below", "none");
  }
  return stories;
}

}  // namespace story
