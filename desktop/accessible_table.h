// The list of twenty and its headers as screen readers know them.
#pragma once

#include <QAccessibleObject>

#include "desktop/list_table.h"

namespace desktop {

// Its children are the cells, row after row. Nothing in it can be selected.
class TableInterface final : public QAccessibleObject, public QAccessibleTableInterface {
 public:
  explicit TableInterface(ListTable& table) : QAccessibleObject(&table), table_(table) {}
  QAccessible::Role role() const override { return QAccessible::Table; }
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  QRect rect() const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int index) const override;
  int childCount() const override { return rowCount() * columnCount(); }
  int indexOfChild(const QAccessibleInterface* child) const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QAccessibleInterface* cellAt(int row, int column) const override;
  int columnCount() const override { return ListColumns; }
  int rowCount() const override { return table_.Rows(); }
  QString columnDescription(int column) const override;
  QString rowDescription(int row) const override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  int selectedCellCount() const override { return 0; }
  QList<QAccessibleInterface*> selectedCells() const override { return {}; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  ListTable& table_;
};

class HeaderInterface final : public QAccessibleObject {
 public:
  explicit HeaderInterface(ListHeader& header) : QAccessibleObject(&header), header_(header) {}
  QAccessible::Role role() const override {
    return header_.OfColumn ? QAccessible::ColumnHeader : QAccessible::RowHeader;
  }
  QAccessible::State state() const override { return {}; }
  QString text(QAccessible::Text kind) const override { return kind == QAccessible::Name ? header_.Text : QString(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(header_.parent()); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

 private:
  ListHeader& header_;
};

}  // namespace desktop
