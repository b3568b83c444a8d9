// Bounds-checked integers of 16 or 32 bits: a value that does not fit throws Failure "Overflow".
#pragma once

#include <cstdint>
#include <limits>

#include "runtime/failure.h"

namespace runtime {

// Value as a whole number of Width; throws Failure Overflow outside its range.
template <typename Width>
constexpr Width Fit(std::int64_t value) {
  if (value < std::numeric_limits<Width>::min() || value > std::numeric_limits<Width>::max())
    throw Failure{Overflow, ""};
  return static_cast<Width>(value);
}

// A variable of that width; reads as a plain number, and every assignment is checked.
template <typename Width>
class CheckedInt {
 public:
  constexpr CheckedInt(std::int64_t value = 0) : value_(Fit<Width>(value)) {}
  constexpr operator std::int64_t() const { return value_; }
  constexpr CheckedInt& operator+=(std::int64_t step) { return *this = CheckedInt(value_ + step); }
  constexpr CheckedInt& operator-=(std::int64_t step) { return *this = CheckedInt(value_ - step); }

 private:
  Width value_;
};

using Int16 = CheckedInt<std::int16_t>;
using Int32 = CheckedInt<std::int32_t>;

// The nearest whole number, ties to even; throws Failure Overflow if it does not fit.
std::int16_t RoundToInt16(double value);
std::int32_t RoundToInt32(double value);

}  // namespace runtime
