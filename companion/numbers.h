// Numbers on the command line.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

namespace companion {

// Nothing if the text is not exactly a whole number.
inline std::optional<std::int64_t> WholeNumber(std::string_view text) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace companion
