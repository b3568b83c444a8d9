// Rounding to whole numbers.
#include "runtime/checked_int.h"

#include <cmath>

namespace runtime {
namespace {

template <typename Width>
Width Round(double value) {
  double floor = std::floor(value);
  double rest = value - floor;
  bool up = rest > 0.5 || (rest == 0.5 && std::fmod(floor, 2.0) != 0.0);
  double whole = up ? floor + 1 : floor;
  if (!(whole >= std::numeric_limits<Width>::min() && whole <= std::numeric_limits<Width>::max())) {
    throw Failure{Overflow, ""};
  }
  return static_cast<Width>(whole);
}

}  // namespace

std::int16_t RoundToInt16(double value) { return Round<std::int16_t>(value); }
std::int32_t RoundToInt32(double value) { return Round<std::int32_t>(value); }

}  // namespace runtime
