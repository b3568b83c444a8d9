// A statement as a text again, and what it asks for done in the plainest way.
#pragma once

#include <string>
#include <string_view>

#include "sort/statement.h"

namespace sort {

// In the order fields, weights, output, test, record length.
std::string Written(const Statement& statement);

// Weight = value.
Weights PlainWeights();

struct Sorted {
  std::size_t Records = 0;
  std::string Bytes;
};
// Weights: of the statement's file, or plain ones if it names none.
Sorted PlainlySorted(const Statement& statement, const Weights& weights, std::string_view input);

}  // namespace sort
