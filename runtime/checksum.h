// The checksum of the files in the safety folder: FNV-1a, 64 bits.
#pragma once

#include <cstdint>
#include <string_view>

namespace runtime {

inline std::uint64_t Checksum(std::string_view bytes) {
  std::uint64_t sum = 0xCBF29CE484222325;
  for (char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  return sum;
}

}  // namespace runtime
