// Texts on their way between the system's code page and the toolkit.
#pragma once

#include <QString>
#include <QValidator>
#include <functional>
#include <string>
#include <string_view>

namespace desktop {

QString Shown(std::string_view text);
// Characters that the code page lacks, and control characters, are left out.
std::string Stored(const QString& text);
// True where Stored would leave none out.
bool Storable(const QString& text);
// As a caption is read: runs of blanks folded to one, none at the ends, no hot key mark.
QString Spoken(std::string_view caption);

// Takes out of a typed or pasted text what the code page lacks. Refuses is asked each time: false leaves the text as it
// is.
class CodePageValidator final : public QValidator {
 public:
  explicit CodePageValidator(std::function<bool()> refuses, QObject* parent = nullptr);
  State validate(QString& text, int& caret) const override;

 private:
  std::function<bool()> refuses_;
};

}  // namespace desktop
