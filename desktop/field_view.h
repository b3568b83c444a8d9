// A text box as a line edit, with a frame that shows the focus.
#pragma once

#include <QLineEdit>
#include <optional>

#include "desktop/code_page_validator.h"
#include "desktop/control_view.h"
#include "desktop/list_table.h"

namespace desktop {

class FieldView final : public QLineEdit, public ControlView {
 public:
  // Refused: called with the pasted characters that the box did not take.
  FieldView(forms::TextBox& box, QWidget& parent, CodePageValidator::Refused refused);
  QWidget& Widget() override { return *this; }
  forms::TextBox& Box() const { return box_; }
  // The text is being set from the form, not by the user.
  bool Mirroring() const { return mirroring_; }
  // Selects the whole text if it is only blanks; otherwise the caret goes to the end, or where the mouse has put it.
  void Entered() override;
  void SetCaretByMouse(bool by_mouse) { caret_by_mouse_ = by_mouse; }

 protected:
  void ApplyLook(const Grid& grid) override;
  void ApplyContent() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void FitFont();
  double Corner() const;
  void PaintGround();
  forms::TextBox& box_;
  std::optional<ListCell> cell_;  // in the list of twenty
  CodePageValidator validator_;
  QFont full_size_;
  bool mirroring_ = false;
  bool caret_by_mouse_ = false;
};

}  // namespace desktop
