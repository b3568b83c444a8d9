// A text box as a line edit, with a plain frame that tells where the focus is.
#pragma once

#include <QLineEdit>

#include "desktop/control_view.h"
#include "desktop/text.h"

namespace desktop {

class FieldView final : public QLineEdit, public ControlView {
 public:
  FieldView(forms::TextBox& box, QWidget& parent);
  ~FieldView() override;
  QWidget& Widget() override { return *this; }
  forms::TextBox& Box() const { return box_; }
  // True while the widget takes over the form's text: no edit of the user's.
  bool Mirroring() const { return mirroring_; }
  // A field that holds nothing but blanks is selected whole; else the caret stands at the end, or where the mouse has
  // put it.
  void Entered() override;
  void SetCaretByMouse(bool by_mouse) { caret_by_mouse_ = by_mouse; }

 protected:
  void Dress(const Grid& grid) override;
  void Fill() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool Refuses() const;
  void FitFont();
  forms::TextBox& box_;
  CodePageValidator validator_;
  QFont full_size_;
  bool mirroring_ = false;
  bool caret_by_mouse_ = false;
};

}  // namespace desktop
