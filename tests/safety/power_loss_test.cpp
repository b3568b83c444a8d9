// The roads through every loss of power, and through those that follow a fault.
#include <gtest/gtest.h>

#include "tests/safety/power_loss.h"

namespace safety {
namespace {

class EveryRoad : public testing::TestWithParam<std::size_t> {
 protected:
  const Road& Walked = Roads()[GetParam()];
};

TEST_P(EveryRoad, SurvivesALossOfPowerAtEachMoment) { EXPECT_EQ(PowerLossComplaint(Walked), "") << Walked.Name; }

// A program that was killed leaves bytes that the disk may still lose, when the journal has gone on to the next film.
TEST_P(EveryRoad, SurvivesALossOfPowerAfterAKill) {
  EXPECT_EQ(PowerLossAfterFaultComplaint(Walked, kit::Fault::Kill), "") << Walked.Name;
  EXPECT_EQ(PowerLossAfterFaultComplaint(Walked, kit::Fault::KillHalfway), "") << Walked.Name;
}

// After a failed sync the disk may have dropped what it was given, and still report success for the next one.
TEST_P(EveryRoad, SurvivesALossOfPowerAfterAFailure) {
  EXPECT_EQ(PowerLossAfterFaultComplaint(Walked, kit::Fault::Error), "") << Walked.Name;
  EXPECT_EQ(PowerLossAfterFaultComplaint(Walked, kit::Fault::ShortThenFull), "") << Walked.Name;
}

INSTANTIATE_TEST_SUITE_P(Roads, EveryRoad, testing::Range<std::size_t>(0, Roads().size()));

}  // namespace
}  // namespace safety
