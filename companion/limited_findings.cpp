#include "companion/limited_findings.h"

#include <string>

#include "companion/printable.h"

namespace companion {

bool LimitedFindings::Counts(std::string_view where, std::string_view kind, bool can_be_mended) {
  Count& count = counts_[{where, kind}];
  if (++count.All <= MostOfAKind) return true;
  count.MendsMore = count.MendsMore || can_be_mended;
  return false;
}

void LimitedFindings::AddRest() {
  for (const auto& [place, count] : counts_) {
    if (count.All <= MostOfAKind) continue;
    Finding rest{0, std::string(place.first),
                 "in " + Counted(count.All - MostOfAKind, "more record") + " it " + std::string(place.second),
                 "Check again once the first " + std::to_string(MostOfAKind) + " are in order."};
    rest.NextFixMends = count.MendsMore;
    Add(std::move(rest));
  }
}

}  // namespace companion
