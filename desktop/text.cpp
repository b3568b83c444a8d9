// Converts character by character.
#include "desktop/text.h"

#include <optional>

#include "runtime/code_page.h"

namespace desktop {
namespace {

// A box has one line: no tabs or line breaks.
bool IsTaken(QChar character) {
  return character.category() != QChar::Other_Control && runtime::FromUnicode(character.unicode());
}

QString Composed(const QString& text) { return text.normalized(QString::NormalizationForm_C); }

}  // namespace

QString Shown(std::string_view text) {
  QString shown(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  for (std::size_t at = 0; at < text.size(); ++at)
    shown[static_cast<qsizetype>(at)] = QChar(static_cast<char16_t>(runtime::ToUnicode(text[at])));
  return shown;
}

std::string Stored(const QString& text) {
  std::string stored;
  for (QChar character : text)
    if (std::optional<char> byte = runtime::FromUnicode(character.unicode())) stored += *byte;
  return stored;
}

QString Typed(const QString& text) {
  QString typed = Composed(text);
  return typed.removeIf([](QChar character) { return !IsTaken(character); });
}

QString NotTyped(const QString& text) {
  QString left_out = Composed(text);
  return left_out.removeIf(IsTaken);
}

QString Spoken(std::string_view caption) { return Shown(caption).remove('&').simplified(); }

QString Breakable(const QString& text) {
  constexpr int LongestWord = 40;
  constexpr QChar MayBreak(0x200B);
  QString broken;
  int length = 0;
  for (QChar character : text) {
    broken.append(character);
    length = character.isSpace() ? 0 : length + 1;
    bool between_names = character == '/' && length > 1;
    if (!between_names && (length < LongestWord || character.isHighSurrogate())) continue;
    broken.append(MayBreak);
    length = 0;
  }
  return broken;
}

}  // namespace desktop
