// With any safeguard disabled, some test must fail.
#include <gtest/gtest.h>

#include "tests/safety/disabled_safeguard.h"
#include "tests/safety/other_hands.h"
#include "tests/safety/power_loss.h"
#include "tests/safety/stopped_work.h"

namespace safety {
namespace {

// The first complaint of any check of any scenario.
std::string AnyComplaint(const DiskWrapper& wrapper) {
  for (const std::string& complaint :
       {ReplacedMasterComplaint(wrapper), RestoredBackupComplaint(wrapper), PlantedFileComplaint(wrapper),
        EndedSortComplaint(wrapper), StoppedTypingComplaint(wrapper), RemainsComplaint(wrapper)}) {
    if (!complaint.empty()) return complaint;
  }
  for (const Scenario& scenario : Scenarios()) {
    for (const std::string& complaint :
         {PowerLossComplaint(scenario, wrapper), TakeBackComplaint(scenario, kit::Fault::ShortThenFull, wrapper)}) {
      if (!complaint.empty()) return scenario.Name + ": " + complaint;
    }
  }
  for (const Scenario& scenario : Scenarios()) {
    for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway, kit::Fault::Error}) {
      std::string complaint = PowerLossAfterFaultComplaint(scenario, fault, wrapper);
      if (!complaint.empty()) return scenario.Name + ": " + complaint;
    }
  }
  return "";
}

class Strength : public testing::TestWithParam<SafeguardRow> {};

TEST_P(Strength, IsMissedWhenItIsDisabled) { EXPECT_NE(AnyComplaint(Without(GetParam().Guard)), ""); }

INSTANTIATE_TEST_SUITE_P(Without, Strength, testing::ValuesIn(Safeguards()),
                         [](const auto& safeguard) { return safeguard.param.Name; });

}  // namespace
}  // namespace safety
