// Finds the boxes of the grid by their names.
#include "desktop/list_table.h"

#include <cstdlib>
#include <string_view>
#include <utility>

#include "desktop/form_view.h"
#include "desktop/text.h"

namespace desktop {
namespace {

struct Column {
  std::string_view Name;  // of its boxes, up to the row
  std::string_view Header;
};
// clang-format off
constexpr Column Columns[ListColumns] = {
  { "Text1(", "Title" },
  { "Text2(", "Year and genre" },
  { "Text3(", "Format" },
};
// clang-format on

}  // namespace

std::optional<ListCell> ListCellOf(const forms::Control& control) {
  for (int column = 0; column < ListColumns; ++column) {
    std::string_view name = Columns[column].Name;
    if (control.Name.starts_with(name)) return ListCell{std::atoi(control.Name.c_str() + name.size()), column};
  }
  return std::nullopt;
}

QString ColumnHeader(int column) { return Shown(Columns[column].Header); }

QString RowHeader(int row) { return QStringLiteral("row %1").arg(row + 1); }

ListHeader::ListHeader(QObject& table, QString text, bool of_column)
    : QObject(&table), Text(std::move(text)), OfColumn(of_column) {}

ListTable::ListTable(FormView& form) : form_(form) {
  for (const forms::Control* control : form.Window().Controls()) {
    std::optional<ListCell> cell = ListCellOf(*control);
    if (!cell) continue;
    auto row = static_cast<std::size_t>(cell->Row);
    if (row >= cells_.size()) cells_.resize(row + 1);
    cells_[row][static_cast<std::size_t>(cell->Column)] = control;
  }
  for (int row = 0; row < static_cast<int>(cells_.size()); ++row)
    row_headers_.push_back(std::make_unique<ListHeader>(*this, RowHeader(row), false));
  for (int column = 0; column < ListColumns; ++column)
    column_headers_[static_cast<std::size_t>(column)] = std::make_unique<ListHeader>(*this, ColumnHeader(column), true);
}

bool ListTable::Shown() const { return Cell(0, 0) && cells_[0][0]->Visible(); }

QObject* ListTable::Cell(int row, int column) const {
  if (row < 0 || row >= Rows() || column < 0 || column >= ListColumns) return nullptr;
  const forms::Control* control = cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  ControlView* view = control ? form_.ViewOf(*control) : nullptr;
  return view ? &view->Widget() : nullptr;
}

}  // namespace desktop
