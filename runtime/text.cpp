// Trimming, padding, upper case and numbers.
#include "runtime/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

#include "runtime/checked_int.h"
#include "runtime/failure.h"

namespace runtime {
namespace {

constexpr std::array<char, 256> Capitals = [] {
  std::array<char, 256> table{};
  for (int code = 0; code < 256; ++code) {
    int capital = code;
    if (code >= 'a' && code <= 'z') capital = code - 0x20;
    if (code >= 0xE0 && code <= 0xFE && code != 0xF7) capital = code - 0x20;
    if (code == 0x9A || code == 0x9C || code == 0x9E) capital = code - 0x10;
    if (code == 0xFF) capital = 0x9F;
    table[code] = static_cast<char>(capital);
  }
  return table;
}();

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// Length of the number at the start of the text: a sign, digits, a decimal point; 0 without a digit.
std::size_t NumberLength(std::string_view text) {
  std::size_t length = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
  bool point = false;
  bool digit = false;
  for (; length < text.size(); ++length) {
    if (IsDigit(text[length])) {
      digit = true;
    } else if (text[length] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  return digit ? length : 0;
}

}  // namespace

std::string_view TrimFront(std::string_view text) {
  std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? text.substr(0, 0) : text.substr(first);
}

std::string_view Trim(std::string_view text) {
  text = TrimFront(text);
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string Fixed(std::string_view text, std::size_t width) {
  std::string fixed(text.substr(0, width));
  fixed.resize(width, ' ');
  return fixed;
}

char Upper(char character) { return Capitals[static_cast<unsigned char>(character)]; }

std::string Upper(std::string_view text) {
  std::string capitals(text);
  for (char& character : capitals) character = Upper(character);
  return capitals;
}

std::size_t Position(std::string_view text, std::string_view sought) {
  if (sought.empty()) return 1;
  std::size_t found = text.find(sought);
  return found == std::string_view::npos ? 0 : found + 1;
}

std::size_t PositionOfCapitals(std::string_view text, std::string_view capitals) {
  if (capitals.size() > text.size()) return 0;
  if (capitals.empty()) return 1;
  for (std::size_t start = 0; start + capitals.size() <= text.size(); ++start) {
    std::size_t length = 0;
    while (length < capitals.size() && Upper(text[start + length]) == capitals[length]) ++length;
    if (length == capitals.size()) return start + 1;
  }
  return 0;
}

std::string NumberText(std::int64_t number) {
  std::string text = number < 0 ? "" : " ";
  return text += std::to_string(number);
}

double NumericValue(std::string_view text) {
  text = TrimFront(text);
  text = text.substr(0, NumberLength(text));
  if (!text.empty() && text[0] == '+') text.remove_prefix(1);
  double value = 0;
  auto error = std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ec;
  // from_chars reports underflow as out of range too.
  bool huge = error == std::errc::result_out_of_range && text.find_first_of("123456789") < text.find('.');
  return huge ? std::copysign(HUGE_VAL, text[0] == '-' ? -1.0 : 1.0) : value;
}

std::int32_t WholeNumber(std::string_view text, std::string_view file) {
  text = Trim(text);
  if (text.empty() || NumberLength(text) != text.size()) throw Failure{TypeMismatch, std::string(file)};
  try {
    return RoundToInt32(NumericValue(text));
  } catch (const Failure& failure) {
    throw Failure{failure.Name, std::string(file)};
  }
}

}  // namespace runtime
