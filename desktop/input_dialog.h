// The input box: a prompt and a line for the answer.
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/text.h"

namespace desktop {

class InputDialog final : public QDialog {
 public:
  InputDialog(const QString& title, const QString& prompt, QWidget* parent);
  QString Answer() const { return line_.text(); }

 private:
  CodePageValidator validator_;
  QVBoxLayout column_;
  QLabel prompt_;
  QLineEdit line_;
  QDialogButtonBox buttons_;
};

}  // namespace desktop
