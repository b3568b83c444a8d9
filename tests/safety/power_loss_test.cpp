// Every scenario survives a loss of power at any moment, also after a fault.
#include <gtest/gtest.h>

#include "tests/safety/power_loss.h"

namespace safety {
namespace {

class EveryScenario : public testing::TestWithParam<Scenario> {
 protected:
  const Scenario& Tested = GetParam();
};

TEST_P(EveryScenario, SurvivesALossOfPowerAtEachMoment) { EXPECT_EQ(PowerLossComplaint(Tested), "") << Tested.Name; }

// A killed program leaves unsynced bytes; they may be lost when the journal already describes the next film.
TEST_P(EveryScenario, SurvivesALossOfPowerAfterAKill) {
  EXPECT_EQ(PowerLossAfterFaultComplaint(Tested, kit::Fault::Kill), "") << Tested.Name;
  EXPECT_EQ(PowerLossAfterFaultComplaint(Tested, kit::Fault::KillHalfway), "") << Tested.Name;
}

// After a failed sync the disk may have dropped data, and the next sync may still report success.
TEST_P(EveryScenario, SurvivesALossOfPowerAfterAFailure) {
  EXPECT_EQ(PowerLossAfterFaultComplaint(Tested, kit::Fault::Error), "") << Tested.Name;
  EXPECT_EQ(PowerLossAfterFaultComplaint(Tested, kit::Fault::ShortThenFull), "") << Tested.Name;
}

INSTANTIATE_TEST_SUITE_P(Scenarios, EveryScenario, testing::ValuesIn(Scenarios()),
                         [](const auto& scenario) { return TestNameOf(scenario.param); });

}  // namespace
}  // namespace safety
