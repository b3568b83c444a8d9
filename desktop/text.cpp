// Converts character by character.
#include "desktop/text.h"

#include <utility>

#include "runtime/code_page.h"

namespace desktop {
namespace {

// A box has one line: no tabs or line breaks.
std::optional<char> Taken(QChar character) {
  if (character.category() == QChar::Other_Control) return std::nullopt;
  return runtime::FromUnicode(character.unicode());
}

}  // namespace

QString Shown(std::string_view text) {
  QString shown(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  for (std::size_t at = 0; at < text.size(); ++at)
    shown[static_cast<qsizetype>(at)] = QChar(static_cast<char16_t>(runtime::ToUnicode(text[at])));
  return shown;
}

std::string Stored(const QString& text) {
  std::string stored;
  for (QChar character : text.normalized(QString::NormalizationForm_C))
    if (std::optional<char> taken = Taken(character)) stored += *taken;
  return stored;
}

bool Storable(const QString& text) {
  QString composed = text.normalized(QString::NormalizationForm_C);
  return Stored(composed).size() == static_cast<std::size_t>(composed.size());
}

QString Spoken(std::string_view caption) { return Shown(caption).remove('&').simplified(); }

CodePageValidator::CodePageValidator(std::function<bool()> refuses, QObject* parent)
    : QValidator(parent), refuses_(std::move(refuses)) {}

QValidator::State CodePageValidator::validate(QString& text, int& caret) const {
  if (!Storable(text) && !refuses_()) return Acceptable;
  QString taken = Shown(Stored(text));
  if (taken == text) return Acceptable;
  caret = static_cast<int>(Stored(text.left(caret)).size());
  text = taken;
  return Acceptable;
}

}  // namespace desktop
