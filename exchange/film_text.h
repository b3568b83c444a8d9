// The fields of a film as UTF-8 text, the same in every format, and back without losing a byte. Padding is left off.
// What is not a character of Windows-1252 has a visible sign of its own, which the code page lacks, so that no text
// needs an escape: U+2400 and up for the control characters, U+2421 for 0x7F, U+2420 for a blank at the start, and
// U+F700 plus the byte for any other.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "store/film_record.h"

namespace exchange {

// Appended. The line end CR LF becomes the empty text; any other is written out byte by byte.
void AppendField(const store::FilmRecord& film, store::FilmField field, std::string& utf8);
std::string FieldText(const store::FilmRecord& film, store::FilmField field);
// Any bytes, in the same signs; leading blanks stay blanks.
std::string TextOf(std::string_view bytes);

// A foreign text as valid UTF-8 that cannot steer a terminal: control characters as their signs, direction marks as
// "?".
std::string Visible(std::string_view utf8);

// The sign of a byte that a format cannot hold where it is.
std::string SignOf(char byte);

// Removes the first character of a text that is not empty and returns it. A byte that is not UTF-8 is taken for a
// character of Windows-1252.
char32_t TakeCharacter(std::string_view& utf8);
void AppendCharacter(char32_t character, std::string& utf8);

enum class Unstorable { Marked, Transliterated };

// Appends the bytes of a text and returns how many characters have none; `unstorable` gets each of these once, in
// UTF-8. They become "?", or what Transliteration() has. Control characters become one blank.
std::size_t AppendBytes(std::string_view utf8, Unstorable as, std::string& bytes, std::string& unstorable);

// ASCII letters and marks for a character that the code page lacks; "?" if there are none.
std::string_view Transliteration(char32_t character);

}  // namespace exchange
