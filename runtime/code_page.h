// Windows-1252 and Unicode: for the edges of the system, where texts are shown, typed or written by hand.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace runtime {

// The Unicode character of a byte; the five bytes that the code page leaves open stand for themselves (C1 controls).
char32_t ToUnicode(char character);
// The byte of a Unicode character; nothing where the code page lacks it.
std::optional<char> FromUnicode(char32_t character);

std::string ToUtf8(std::string_view text);
// Nothing where the UTF-8 text is malformed or holds a character that the code page lacks.
std::optional<std::string> FromUtf8(std::string_view utf8);

}  // namespace runtime
