// A validator that corrected the text itself would make the line forget its undo history. So it rejects the change,
// which the line takes back, and then inserts what is left of it.
#include "desktop/code_page_validator.h"

#include <QTimer>
#include <algorithm>
#include <utility>

#include "desktop/text.h"

namespace desktop {

CodePageValidator::CodePageValidator(QLineEdit& line, Refused refused) : line_(line), refused_(std::move(refused)) {
  line_.setValidator(this);
}

CodePageValidator::~CodePageValidator() { line_.setValidator(nullptr); }

void CodePageValidator::SetText(const QString& text) {
  given_ = text;
  line_.setText(text);
}

QValidator::State CodePageValidator::validate(QString& text, int& caret) const {
  QString not_taken = NotTaken(text);
  if (not_taken.isEmpty()) {
    accepted_ = text;
    return Acceptable;
  }
  QTimer::singleShot(0, this, [this, not_taken, before = accepted_, rest = Typed(Inserted(text, caret))] {
    if (!rest.isEmpty() && line_.text() == before) line_.insert(rest);
    refused_(not_taken);
  });
  return Invalid;
}

QString CodePageValidator::NotTaken(const QString& text) const {
  QString not_taken;
  for (QChar character : NotTyped(text))
    if (!given_.contains(character)) not_taken += character;
  return not_taken;
}

// The change put this text before the caret, in place of what was selected.
QString CodePageValidator::Inserted(const QString& text, int caret) const {
  qsizetype after = text.size() - caret;
  qsizetype most = std::min<qsizetype>(caret, accepted_.size() - after);
  auto differs = std::mismatch(text.begin(), text.begin() + std::max<qsizetype>(most, 0), accepted_.begin());
  return text.mid(differs.first - text.begin(), caret - (differs.first - text.begin()));
}

}  // namespace desktop
