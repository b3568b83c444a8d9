// What a mutated copy of the sources is compiled with: each of its literals and table rows asks here which of two
// values it has. The environment variable MUTANT is the number of the one that is altered.
#pragma once

#include <array>
#include <cstddef>
#include <cstdlib>
#include <type_traits>

namespace mutation {

// Which ones were asked for, by number.
inline std::array<unsigned char, 1 << 16> Reached{};

inline int Altered() {
  static const int number = std::getenv("MUTANT") ? std::atoi(std::getenv("MUTANT")) : -1;
  return number;
}

inline bool Is(int number) {
  Reached[static_cast<std::size_t>(number)] = 1;
  return number == Altered();
}

template <typename Value>
Value At(int number, const Value& real, const std::type_identity_t<Value>& altered) {
  return Is(number) ? altered : real;
}

// A text stays an array, of the same length wherever it can.
template <std::size_t Size>
const char (&Text(int number, const char (&real)[Size], const char (&altered)[Size]))[Size] {
  return Is(number) ? altered : real;
}

template <std::size_t Size, std::size_t OtherSize>
const char* Text(int number, const char (&real)[Size], const char (&altered)[OtherSize]) {
  return Is(number) ? altered : real;
}

}  // namespace mutation
