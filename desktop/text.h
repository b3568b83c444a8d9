// Converts texts between Windows-1252 and the toolkit's Unicode.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace desktop {

QString Shown(std::string_view text);
// The inverse, all bytes included; leaves out characters that the code page lacks.
std::string Stored(const QString& text);
// What a box takes of a typed or pasted text, accents joined to their letters: no control characters and nothing that
// the code page lacks.
QString Typed(const QString& text);
// What Typed leaves out.
QString NotTyped(const QString& text);
// A caption as read aloud: blanks folded and trimmed, no hot key mark.
QString Spoken(std::string_view caption);

// The same text to look at, in which a line can break after each slash and inside a long word.
QString Breakable(const QString& text);

}  // namespace desktop
