// What the fuzz targets share: an input that is taken apart from the front, and properties that must hold. Each target
// is a file NAME_target.cpp with LLVMFuzzerTestOneInput, played by libFuzzer or by corpus_main.cpp.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

namespace fuzz {

// Ends the process with these words if it does not hold.
inline void Require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", property);
  std::abort();
}

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

  bool AtEnd() const { return rest_.empty(); }
  // 0 past the end.
  unsigned Byte() {
    std::string_view byte = Bytes(1);
    return byte.empty() ? 0 : static_cast<unsigned char>(byte[0]);
  }
  bool Flag() { return Byte() % 2 == 1; }
  // From 0 to below the bound, at most 65536.
  std::size_t Below(std::size_t bound) {
    std::size_t number = Byte();
    if (bound > 256) number = number << 8 | Byte();
    return number % bound;
  }
  // Of eight bytes, any value.
  std::int64_t Number() {
    std::int64_t number = 0;
    std::string_view bytes = Bytes(sizeof number);
    if (!bytes.empty()) std::memcpy(&number, bytes.data(), bytes.size());
    return number;
  }
  // Fewer at the end.
  std::string_view Bytes(std::size_t most) {
    std::string_view bytes = rest_.substr(0, most);
    rest_.remove_prefix(bytes.size());
    return bytes;
  }
  std::string_view Rest() { return Bytes(rest_.size()); }

 private:
  std::string_view rest_;
};

}  // namespace fuzz
