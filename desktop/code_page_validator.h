// Keeps out of a line edit what the code page lacks, in whatever way it arrives: pasted, dropped, or through a screen
// reader. Typed characters are refused earlier, in user_keys.cpp.
#pragma once

#include <QLineEdit>
#include <QValidator>
#include <functional>

namespace desktop {

class CodePageValidator final : public QValidator {
 public:
  // Refused is called with the characters that were not taken; it runs from the event loop.
  using Refused = std::function<void(const QString& characters)>;
  // Becomes the validator of the line.
  CodePageValidator(QLineEdit& line, Refused refused);
  ~CodePageValidator() override;

  // Sets the line's text, whatever its characters. They stay allowed, since undo may bring them back.
  void SetText(const QString& text);
  State validate(QString& text, int& caret) const override;

 private:
  QString NotTaken(const QString& text) const;
  QString Inserted(const QString& text, int caret) const;

  QLineEdit& line_;
  Refused refused_;
  QString given_;             // what SetText set last
  mutable QString accepted_;  // the line's text before the change that is being validated
};

}  // namespace desktop
