// Converts texts between Windows-1252 and the toolkit's Unicode.
#pragma once

#include <QString>
#include <QValidator>
#include <functional>
#include <string>
#include <string_view>

namespace desktop {

QString Shown(std::string_view text);
// Leaves out control characters and characters that the code page lacks.
std::string Stored(const QString& text);
// Whether Stored would leave nothing out.
bool Storable(const QString& text);
// A caption as read aloud: blanks folded and trimmed, no hot key mark.
QString Spoken(std::string_view caption);

// Removes from a typed or pasted text what the code page lacks. Calls refuses each time; if it returns false, the text
// stays as it is.
class CodePageValidator final : public QValidator {
 public:
  explicit CodePageValidator(std::function<bool()> refuses, QObject* parent = nullptr);
  State validate(QString& text, int& caret) const override;

 private:
  std::function<bool()> refuses_;
};

}  // namespace desktop
