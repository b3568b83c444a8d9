// Conversion between Windows-1252 and Unicode at the edges: screen, keyboard, test files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace runtime {

// The Unicode character of a byte; the five undefined bytes map to C1 controls.
char32_t ToUnicode(char character);
// The byte of a Unicode character, if the code page has it.
std::optional<char> FromUnicode(char32_t character);

std::string ToUtf8(std::string_view text);
// Nothing if the UTF-8 text is malformed or contains a character that the code page lacks.
std::optional<std::string> FromUtf8(std::string_view utf8);

}  // namespace runtime
