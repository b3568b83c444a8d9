// Findings of single films: of each kind only the first ones are told, then how many more there are, so that no damaged
// file fills the memory or the terminal.
#pragma once

#include <map>
#include <string_view>
#include <utility>

#include "companion/finding.h"

namespace companion {

class LimitedFindings {
 public:
  static constexpr std::int64_t MostOfAKind = 1'000;

  // Where those that are told are added.
  explicit LimitedFindings(Findings& told) : told_(told) {}

  // Counts a finding; whether it is to be told. Kind: a clause about "it". Both texts are constants.
  bool Counts(std::string_view where, std::string_view kind, bool can_be_mended);
  void Add(Finding finding) { told_.push_back(std::move(finding)); }
  // Adds how many more there are of each kind.
  void AddRest();

 private:
  struct Count {
    std::int64_t All = 0;
    bool MendsMore = false;
  };
  Findings& told_;
  std::map<std::pair<std::string_view, std::string_view>, Count> counts_;
};

}  // namespace companion
