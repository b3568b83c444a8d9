// A text box as screen readers know it: a field of editable text, in the grid a cell of the list.
#pragma once

#include "desktop/accessible_control.h"
#include "desktop/field_view.h"
#include "desktop/list_table.h"

namespace desktop {

class FieldInterface final : public ControlInterface,
                             public QAccessibleTextInterface,
                             public QAccessibleEditableTextInterface,
                             public QAccessibleTableCellInterface {
 public:
  explicit FieldInterface(FieldView& field);
  // Without the focus it sends nothing of a new text: with three events for each field, a film that comes up would make
  // screen readers drop what is announced.
  bool isValid() const override { return ControlInterface::isValid() && (!field_.Mirroring() || field_.hasFocus()); }
  QAccessible::State state() const override;
  QAccessibleInterface* parent() const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text kind, const QString& text) override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  // The text.
  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override { return field_.hasSelectedText() ? 1 : 0; }
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int) override { field_.deselect(); }
  void setSelection(int, int start, int end) override { field_.setSelection(start, end - start); }
  int cursorPosition() const override { return field_.cursorPosition(); }
  void setCursorPosition(int position) override { field_.setCursorPosition(position); }
  QString text(int start, int end) const override { return field_.text().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(field_.text().size()); }
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int) override { field_.setCursorPosition(start); }
  QString attributes(int offset, int* start, int* end) const override;

  // Its changes. They reach the form as typing does.
  void deleteText(int start, int end) override { replaceText(start, end, {}); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override;

  // The cell.
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override;
  int columnIndex() const override { return cell_ ? cell_->Column : -1; }
  int rowIndex() const override { return cell_ ? cell_->Row : -1; }
  bool isSelected() const override { return false; }
  QAccessibleInterface* table() const override;

 private:
  FieldView& field_;
  std::optional<ListCell> cell_;
};

}  // namespace desktop
