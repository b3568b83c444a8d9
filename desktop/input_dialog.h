// The input box: a prompt and a line for the answer.
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/code_page_validator.h"

namespace desktop {

class InputDialog final : public QDialog {
 public:
  // Refused: called with the characters that the line did not take.
  InputDialog(const QString& title, const QString& prompt, QWidget* parent, CodePageValidator::Refused refused);
  QString Answer() const { return line_.text(); }

 private:
  QVBoxLayout column_;
  QLabel prompt_;
  QLineEdit line_;
  CodePageValidator validator_;
  QDialogButtonBox buttons_;
};

}  // namespace desktop
