// One column for each character: the code page has no wide and no combining ones.
#include "companion/printable.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "runtime/code_page.h"
#include "runtime/text.h"

namespace companion {
namespace {

bool IsControl(char character) {
  const char32_t unicode = runtime::ToUnicode(character);
  return unicode < U' ' || (unicode >= 0x7F && unicode < 0xA0);
}

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

std::string EscapeOf(char character) {
  switch (character) {
    case '\t':
      return "\\t";
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\\':
      return "\\\\";
  }
  std::array<char, 8> digits{};
  std::snprintf(digits.data(), digits.size(), "\\x%02X", static_cast<unsigned char>(character));
  return digits.data();
}

}  // namespace

std::string Printable(std::string_view text) {
  std::string printable(text);
  std::replace_if(printable.begin(), printable.end(), IsControl, '?');
  return runtime::ToUtf8(printable);
}

std::string TitleOf(const store::FilmRecord& film) {
  const std::string_view title = runtime::Trim(film.Get(store::FilmField::Title));
  return title.empty() ? "nothing" : Printable(title);
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (char character : text) {
    if (IsControl(character) || character == '\\') {
      escaped += EscapeOf(character);
    } else {
      escaped += character;
    }
  }
  return runtime::ToUtf8(escaped);
}

std::size_t Width(std::string_view utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), StartsCharacter));
}

std::string Padded(std::string_view utf8, std::size_t columns) {
  const std::size_t width = Width(utf8);
  if (width <= columns) return std::string(utf8).append(columns - width, ' ');
  std::size_t end = 0;
  for (std::size_t left = columns; end < utf8.size(); ++end) {
    if (StartsCharacter(utf8[end]) && left-- <= 1) break;
  }
  return columns == 0 ? "" : std::string(utf8.substr(0, end)).append("…");
}

std::string Counted(std::int64_t count, std::string_view thing) {
  return std::to_string(count).append(" ").append(thing).append(count == 1 ? "" : "s");
}

}  // namespace companion
