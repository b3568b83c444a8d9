// A table for 0x80 to 0x9F; all other bytes are Latin-1.
#include "runtime/code_page.h"

#include <algorithm>
#include <array>

namespace runtime {
namespace {

// clang-format off
constexpr std::array<char32_t, 32> Upper80 = {
  0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

// Removes the first character of a UTF-8 text and returns it; nothing if it is malformed.
std::optional<char32_t> TakeCharacter(std::string_view& utf8) {
  auto lead = static_cast<unsigned char>(utf8[0]);
  std::size_t length = lead < 0x80 ? 1 : lead >= 0xC2 && lead < 0xE0 ? 2 : lead >= 0xE0 && lead < 0xF0 ? 3 : 0;
  if (length == 0 || length > utf8.size()) return std::nullopt;
  char32_t character = length == 1 ? lead : lead & (0xFF >> (length + 1));
  for (std::size_t index = 1; index < length; ++index) {
    auto next = static_cast<unsigned char>(utf8[index]);
    if ((next & 0xC0) != 0x80) return std::nullopt;
    character = (character << 6) | (next & 0x3F);
  }
  if (length == 3 && character < 0x800) return std::nullopt;
  utf8.remove_prefix(length);
  return character;
}

}  // namespace

char32_t ToUnicode(char character) {
  auto code = static_cast<unsigned char>(character);
  return code >= 0x80 && code < 0xA0 ? Upper80[code - 0x80] : code;
}

std::optional<char> FromUnicode(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<char>(character);
  const auto* found = std::find(Upper80.begin(), Upper80.end(), character);
  if (found == Upper80.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - Upper80.begin()));
}

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  for (char character : text) {
    char32_t unicode = ToUnicode(character);
    if (unicode < 0x80) {
      utf8 += static_cast<char>(unicode);
    } else if (unicode < 0x800) {
      utf8 += static_cast<char>(0xC0 | (unicode >> 6));
      utf8 += static_cast<char>(0x80 | (unicode & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | (unicode >> 12));
      utf8 += static_cast<char>(0x80 | ((unicode >> 6) & 0x3F));
      utf8 += static_cast<char>(0x80 | (unicode & 0x3F));
    }
  }
  return utf8;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    std::optional<char32_t> unicode = TakeCharacter(utf8);
    if (!unicode) return std::nullopt;
    std::optional<char> character = FromUnicode(*unicode);
    if (!character) return std::nullopt;
    text += *character;
  }
  return text;
}

}  // namespace runtime
