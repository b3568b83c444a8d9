// Writes which mutants were reached since the last call.
#pragma once

#include <ostream>

#include "tests/mutation/at.h"

namespace mutation {

inline void WriteReached(std::ostream& out) {
  for (std::size_t number = 0; number < Reached.size(); ++number) {
    if (Reached[number]) out << ' ' << number;
  }
  out << std::endl;
  Reached.fill(0);
}

}  // namespace mutation
