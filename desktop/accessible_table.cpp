// Finds the cells.
#include "desktop/accessible_table.h"

#include "desktop/form_view.h"

namespace desktop {

QAccessible::State TableInterface::state() const {
  QAccessible::State state;
  state.invisible = state.offscreen = !table_.Shown();
  return state;
}

QString TableInterface::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? QStringLiteral("List of films") : QString();
}

QRect TableInterface::rect() const {
  if (!table_.Shown()) return {};
  return cellAt(0, 0)->rect() | cellAt(rowCount() - 1, columnCount() - 1)->rect();
}

QAccessibleInterface* TableInterface::parent() const {
  return QAccessible::queryAccessibleInterface(&table_.Form().Surface());
}

QAccessibleInterface* TableInterface::child(int index) const {
  return cellAt(index / columnCount(), index % columnCount());
}

int TableInterface::indexOfChild(const QAccessibleInterface* child) const {
  for (int index = 0; index < childCount(); ++index)
    if (table_.Cell(index / columnCount(), index % columnCount()) == child->object()) return index;
  return -1;
}

void* TableInterface::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this) : nullptr;
}

QAccessibleInterface* TableInterface::cellAt(int row, int column) const {
  QObject* cell = table_.Cell(row, column);
  return cell ? QAccessible::queryAccessibleInterface(cell) : nullptr;
}

QString TableInterface::columnDescription(int column) const {
  return column >= 0 && column < columnCount() ? ColumnHeader(column) : QString();
}

QString TableInterface::rowDescription(int row) const {
  return row >= 0 && row < rowCount() ? RowHeader(row) : QString();
}

}  // namespace desktop
