// Which records a sort keeps.
#pragma once

#include <optional>
#include <vector>

#include "sort/statement.h"

namespace sort {

class IncludeFilter {
 public:
  // Without a test, keeps all.
  IncludeFilter(const std::optional<IncludeTest>& test, const Weights& weights);
  bool Keeps(const char* record) const {
    const char* field = record + span_.Offset;
    for (std::size_t at = 0; at < constant_.size(); ++at) {
      unsigned char weight = weights_[static_cast<unsigned char>(at < span_.Width ? field[at] : ' ')];
      if (weight != constant_[at]) return weight < constant_[at] ? keeps_less_ : keeps_more_;
    }
    return keeps_equal_;
  }

 private:
  Weights weights_;
  RecordSpan span_;
  std::vector<unsigned char> constant_;  // weights
  bool keeps_less_ = false, keeps_equal_ = true, keeps_more_ = false;
};

}  // namespace sort
