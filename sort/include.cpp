// The field and the constant are compared by weight, padded with blanks.
#include "sort/include.h"

#include <algorithm>

namespace sort {

IncludeFilter::IncludeFilter(const std::optional<IncludeTest>& test, const Weights& weights) : weights_(weights) {
  if (!test) return;
  span_ = test->Span;
  std::string constant = test->Constant;
  constant.resize(std::max(constant.size(), span_.Width), ' ');
  for (char character : constant) constant_.push_back(weights_[static_cast<unsigned char>(character)]);
  keeps_less_ = test->KeepsLess;
  keeps_equal_ = test->KeepsEqual;
  keeps_more_ = test->KeepsGreater;
}

}  // namespace sort
