// Reads and changes the line edit.
#include "desktop/accessible_field.h"

#include <QFontMetrics>
#include <algorithm>

namespace desktop {
namespace {

constexpr int ToolkitMargin = 2;  // pixels before the first letter, besides the margin of the box

}  // namespace

FieldInterface::FieldInterface(FieldView& field)
    : ControlInterface(field, ListCellOf(field.Control()) ? QAccessible::Cell : QAccessible::EditableText),
      field_(field),
      cell_(ListCellOf(field.Control())) {}

QAccessible::State FieldInterface::state() const {
  QAccessible::State state = ControlInterface::state();
  state.readOnly = field_.isReadOnly();
  state.editable = !field_.isReadOnly();
  state.selectableText = true;
  state.selectable = false;
  return state;
}

QAccessibleInterface* FieldInterface::parent() const { return cell_ ? table() : ControlInterface::parent(); }

QString FieldInterface::text(QAccessible::Text kind) const {
  return kind == QAccessible::Value ? field_.text() : ControlInterface::text(kind);
}

void FieldInterface::setText(QAccessible::Text kind, const QString& text) {
  if (kind == QAccessible::Value) replaceText(0, characterCount(), text);
}

void* FieldInterface::interface_cast(QAccessible::InterfaceType type) {
  switch (type) {
    case QAccessible::TextInterface:
      return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::EditableTextInterface:
      return field_.isReadOnly() ? nullptr : static_cast<QAccessibleEditableTextInterface*>(this);
    case QAccessible::TableCellInterface:
      return cell_ ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
    default:
      return ControlInterface::interface_cast(type);
  }
}

void FieldInterface::selection(int index, int* start, int* end) const {
  bool there = index == 0 && field_.hasSelectedText();
  *start = there ? field_.selectionStart() : 0;
  *end = there ? field_.selectionEnd() : 0;
}

QRect FieldInterface::characterRect(int offset) const {
  QFontMetrics metrics(field_.font());
  int room = field_.width() - metrics.horizontalAdvance(field_.text());
  int margin = field_.textMargins().left() + ToolkitMargin;
  int from = field_.alignment() & Qt::AlignLeft ? margin : std::max(margin, room / 2);
  int left = from + metrics.horizontalAdvance(field_.text().left(offset));
  int width = metrics.horizontalAdvance(field_.text().mid(offset, 1));
  return {field_.mapToGlobal(QPoint(left, 0)), QSize(width, field_.height())};
}

int FieldInterface::offsetAtPoint(const QPoint& point) const {
  return field_.cursorPositionAt(field_.mapFromGlobal(point));
}

QString FieldInterface::attributes(int, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

void FieldInterface::replaceText(int start, int end, const QString& text) {
  if (field_.isReadOnly() || !field_.isEnabled()) return;
  field_.setSelection(start, end - start);
  field_.insert(text);
}

QList<QAccessibleInterface*> FieldInterface::columnHeaderCells() const {
  if (!cell_) return {};
  return {QAccessible::queryAccessibleInterface(&Form().List().HeaderOfColumn(cell_->Column))};
}

QList<QAccessibleInterface*> FieldInterface::rowHeaderCells() const {
  if (!cell_) return {};
  return {QAccessible::queryAccessibleInterface(&Form().List().HeaderOfRow(cell_->Row))};
}

QAccessibleInterface* FieldInterface::table() const {
  return cell_ ? QAccessible::queryAccessibleInterface(&Form().List()) : nullptr;
}

}  // namespace desktop
