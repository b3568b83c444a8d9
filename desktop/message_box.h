// The message box of the program.
#pragma once

#include <QMessageBox>

#include "forms/desk.h"

namespace desktop {

// A question is answered by Yes or No alone: Esc and the close box leave it standing, since No would drop what was
// typed.
class MessageBox final : public QMessageBox {
 public:
  MessageBox(forms::Icon icon, const QString& title, const QString& text, forms::Buttons buttons, QWidget* parent);
  forms::Answer Ask();

 protected:
  void keyPressEvent(QKeyEvent* key) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  bool is_question_;
};

}  // namespace desktop
