// The list of twenty as screen readers know it: a table, whose cells are the boxes of the grid.
#pragma once

#include <QObject>
#include <QString>
#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace forms {
class Control;
}

namespace desktop {

class FormView;

// Both from 0.
struct ListCell {
  int Row = 0, Column = 0;
};
inline constexpr int ListColumns = 3;

// Nothing for a control that is no box of the grid.
std::optional<ListCell> ListCellOf(const forms::Control& control);
QString ColumnHeader(int column);
QString RowHeader(int row);

// A header of the table: a thing to be spoken that is not drawn.
class ListHeader final : public QObject {
 public:
  ListHeader(QObject& table, QString text, bool of_column);
  const QString Text;
  const bool OfColumn;
};

class ListTable final : public QObject {
 public:
  explicit ListTable(FormView& form);
  FormView& Form() const { return form_; }
  // Whether the list is up.
  bool Shown() const;
  // nullptr before the box was first shown.
  QObject* Cell(int row, int column) const;
  int Rows() const { return static_cast<int>(row_headers_.size()); }
  ListHeader& HeaderOfRow(int row) const { return *row_headers_.at(static_cast<std::size_t>(row)); }
  ListHeader& HeaderOfColumn(int column) const { return *column_headers_.at(static_cast<std::size_t>(column)); }

 private:
  FormView& form_;
  std::vector<std::array<const forms::Control*, ListColumns>> cells_;
  std::vector<std::unique_ptr<ListHeader>> row_headers_;
  std::array<std::unique_ptr<ListHeader>, ListColumns> column_headers_;
};

}  // namespace desktop
