// Numbers that a seed decides, the same on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace monkey {

class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}

  // SplitMix64.
  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = (state_ ^ (state_ >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
  }
  std::size_t Below(std::size_t sides) { return static_cast<std::size_t>(Next() % sides); }
  bool OneIn(std::size_t sides) { return Below(sides) == 0; }
  template <typename Table>
  const auto& OneOf(const Table& table) {
    return *std::next(std::begin(table), static_cast<std::ptrdiff_t>(Below(std::size(table))));
  }

 private:
  std::uint64_t state_;
};

}  // namespace monkey
