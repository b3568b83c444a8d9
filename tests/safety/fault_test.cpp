// Every disk call of every scenario fails in every way: the old folder or the new one is left, the failure is reported,
// and the program starts on what is left.
#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/text.h"
#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/safety/fault_rows.h"
#include "tests/safety/power_loss.h"
#include "tests/safety/scenario.h"
#include "tests/safety/scenario_run.h"
#include "tests/safety/soundness.h"

namespace safety {
namespace {

// The screen shows the films of the master file, one after the other.
void ExpectFilmsOnScreen(Program& program, const std::string& master) {
  for (std::size_t slot = 1; slot * store::RecordLength <= master.size(); ++slot) {
    GoTo(program, static_cast<int>(slot));
    std::string_view title = std::string_view(master).substr((slot - 1) * store::RecordLength, 40);
    ASSERT_EQ(program.RecordScreen.txtTitle.Text(), runtime::Trim(title)) << "in slot " << slot;
  }
}

// The next start shows all films, and a film can be saved.
void ExpectGoesOn(kit::MemoryDisk& memory) {
  std::string master = memory.Content().at(std::string(store::MasterFileName));
  StartedProgram started(memory);
  ExpectFilmsOnScreen(started.Program, master);
  started.Program.Deliver([&] { started.Program.RecordScreen.cmdReset_Click(); });
  EditFilm(1, 9)(started.Program);
  ASSERT_FALSE(started.Program.Stopped());
  master.replace(0, std::min<std::size_t>(master.size(), store::RecordLength), kit::FilmBytes(1, 9));
  ASSERT_EQ(memory.Content().at(std::string(store::MasterFileName)), master);
}

class EveryCall : public testing::TestWithParam<Scenario> {
 protected:
  const Scenario& Tested = GetParam();
  std::vector<std::vector<kit::Folder>> Allowed = AllowedFolders(Tested);
  std::size_t Calls = CallsOf(Tested);
};

TEST_P(EveryCall, FailsNamedAndLeavesTheOldOrTheNew) {
  for (const FaultRow& fault : Faults) {
    for (std::size_t at = 0; at < Calls; ++at) {
      SCOPED_TRACE(Tested.Name + ", " + std::string(fault.Name) + " at call " + std::to_string(at));
      kit::MemoryDisk memory(Tested.Before);
      kit::FaultyDisk faulty(memory, {fault.As, at, fault.FromThenOn});
      ScenarioRun run = RunScenario(Tested, faulty);
      if (run.Stopped) {
        ASSERT_FALSE(fault.Failure.empty()) << "stopped by " << run.Stopped->Name;
        ASSERT_EQ(run.Stopped->Name, fault.Failure);
        ASSERT_EQ(run.Reported, fault.Failure);
      } else if (!run.Refused.empty()) {
        ASSERT_FALSE(fault.Failure.empty()) << "refused: " << run.Refused;
      } else {
        ASSERT_EQ(run.Steps, Tested.Steps.size());
      }
      ASSERT_EQ(Complaint(memory, Allowed[run.Steps], Tested.Before), "");
      ASSERT_NO_FATAL_FAILURE(ExpectGoesOn(memory));
    }
  }
}

// The program undoes a failed write before it stops.
TEST_P(EveryCall, LeavesNoMixtureBehindWhenItFailsOnce) {
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::ShortThenFull})
    EXPECT_EQ(TakeBackComplaint(Tested, fault), "") << Tested.Name;
}

TEST_P(EveryCall, MayBeTheLastBeforeAKill) {
  for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t at = 0; at < Calls; ++at) {
      SCOPED_TRACE(Tested.Name + ", killed at call " + std::to_string(at));
      kit::MemoryDisk memory(Tested.Before);
      kit::FaultyDisk faulty(memory, {fault, at});
      ScenarioRun run = RunScenario(Tested, faulty);
      ASSERT_TRUE(run.Killed);
      ASSERT_EQ(Complaint(memory, Allowed[run.Steps], Tested.Before), "");
      ASSERT_NO_FATAL_FAILURE(ExpectGoesOn(memory));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Scenarios, EveryCall, testing::ValuesIn(Scenarios()),
                         [](const auto& scenario) { return TestNameOf(scenario.param); });

}  // namespace
}  // namespace safety
