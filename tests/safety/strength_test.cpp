// The tests are strong: with any one safeguard switched off they find fault with at least one road.
#include <gtest/gtest.h>

#include "tests/safety/power_loss.h"
#include "tests/safety/switched_off.h"

namespace safety {
namespace {

// The first complaint of all that is tried on all roads.
std::string AnyComplaint(const Fitting& fit) {
  for (const Road& road : Roads()) {
    for (const std::string& complaint :
         {PowerLossComplaint(road, fit), TakeBackComplaint(road, kit::Fault::ShortThenFull, fit)}) {
      if (!complaint.empty()) return road.Name + ": " + complaint;
    }
    for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway, kit::Fault::Error}) {
      std::string complaint = PowerLossAfterFaultComplaint(road, fault, fit);
      if (!complaint.empty()) return road.Name + ": " + complaint;
    }
  }
  return "";
}

class Strength : public testing::TestWithParam<SafeguardRow> {};

TEST_P(Strength, IsSeenWhenItIsSwitchedOff) { EXPECT_NE(AnyComplaint(Without(GetParam().Guard)), ""); }

INSTANTIATE_TEST_SUITE_P(Without, Strength, testing::ValuesIn(Safeguards()),
                         [](const auto& safeguard) { return safeguard.param.Name; });

}  // namespace
}  // namespace safety
