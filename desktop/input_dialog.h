// The input box: a prompt and one line to answer on.
#pragma once

#include <QDialog>
#include <QLineEdit>

namespace desktop {

class InputDialog final : public QDialog {
 public:
  InputDialog(const QString& title, const QString& prompt, QWidget* parent);
  QString Answer() const { return line_.text(); }

 private:
  QLineEdit line_;
};

}  // namespace desktop
