// Every call of every road goes wrong in every way: what is left is the old folder or the new one, the failure is
// named, and the program starts on it.
#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/text.h"
#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/films.h"
#include "tests/safety/complaint.h"
#include "tests/safety/played.h"
#include "tests/safety/power_loss.h"
#include "tests/safety/road.h"

namespace safety {
namespace {

// Failure: what the program has to report; "" where the fault is to remain unseen.
struct FaultRow {
  std::string Name;
  kit::Fault As;
  bool FromThenOn;
  std::string_view Failure;
};
const FaultRow Faults[] = {
    {"disk full", kit::Fault::Full, false, runtime::DiskFull},
    {"disk full from then on", kit::Fault::Full, true, runtime::DiskFull},
    {"error", kit::Fault::Error, false, runtime::DeviceError},
    {"error from then on", kit::Fault::Error, true, runtime::DeviceError},
    {"refused", kit::Fault::Refused, false, runtime::PathError},
    {"refused from then on", kit::Fault::Refused, true, runtime::PathError},
    {"half a write, then disk full", kit::Fault::ShortThenFull, false, runtime::DiskFull},
    {"half a write, then disk full from then on", kit::Fault::ShortThenFull, true, runtime::DiskFull},
    {"interrupted", kit::Fault::Interrupted, false, ""},
    {"short", kit::Fault::Short, false, ""},
    {"short from then on", kit::Fault::Short, true, ""},
};

// The films that the screen shows, one after the other, are those of the master file.
void ExpectFilmsOnScreen(Program& program, const std::string& master) {
  for (std::size_t slot = 1; slot * store::RecordLength <= master.size(); ++slot) {
    GoTo(program, static_cast<int>(slot));
    std::string_view title = std::string_view(master).substr((slot - 1) * store::RecordLength, 40);
    ASSERT_EQ(program.RecordScreen.txtTitle.Text(), runtime::Trim(title)) << "in slot " << slot;
  }
}

// The next start shows what is there, and the next film can be saved.
void ExpectGoesOn(kit::MemoryDisk& memory) {
  std::string master = memory.Content().at(std::string(store::MasterFileName));
  Running run(memory);
  ExpectFilmsOnScreen(run.Program, master);
  run.Program.Deliver([&] { run.Program.RecordScreen.cmdReset_Click(); });
  EditFilm(1, 9)(run.Program);
  ASSERT_FALSE(run.Program.Stopped());
  master.replace(0, std::min<std::size_t>(master.size(), store::RecordLength), kit::FilmBytes(1, 9));
  ASSERT_EQ(memory.Content().at(std::string(store::MasterFileName)), master);
}

class EveryCall : public testing::TestWithParam<std::size_t> {
 protected:
  const Road& Walked = Roads()[GetParam()];
  std::vector<std::vector<kit::Folder>> Allowed = Stations(Walked);
  std::size_t Calls = CallsOf(Walked);
};

TEST_P(EveryCall, FailsNamedAndLeavesTheOldOrTheNew) {
  for (const FaultRow& fault : Faults) {
    for (std::size_t at = 0; at < Calls; ++at) {
      SCOPED_TRACE(Walked.Name + ", " + fault.Name + " at call " + std::to_string(at));
      kit::MemoryDisk memory(Walked.Before);
      kit::FaultyDisk faulty(memory, {fault.As, at, fault.FromThenOn});
      Played played = Play(Walked, faulty);
      if (played.Stopped) {
        ASSERT_FALSE(fault.Failure.empty()) << "stopped by " << played.Stopped->Name;
        ASSERT_EQ(played.Stopped->Name, fault.Failure);
        ASSERT_EQ(played.Reported, fault.Failure);
      } else {
        ASSERT_EQ(played.Steps, Walked.Steps.size());
      }
      ASSERT_EQ(Complaint(memory, Allowed[played.Steps], Walked.Before), "");
      ASSERT_NO_FATAL_FAILURE(ExpectGoesOn(memory));
    }
  }
}

// What a failing write has begun is taken back before the program stops.
TEST_P(EveryCall, LeavesNoMixtureBehindWhenItFailsOnce) {
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::ShortThenFull})
    EXPECT_EQ(TakeBackComplaint(Walked, fault), "") << Walked.Name;
}

TEST_P(EveryCall, MayBeTheLastBeforeAKill) {
  for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t at = 0; at < Calls; ++at) {
      SCOPED_TRACE(Walked.Name + ", killed at call " + std::to_string(at));
      kit::MemoryDisk memory(Walked.Before);
      kit::FaultyDisk faulty(memory, {fault, at});
      Played played = Play(Walked, faulty);
      ASSERT_TRUE(played.Killed);
      ASSERT_EQ(Complaint(memory, Allowed[played.Steps], Walked.Before), "");
      ASSERT_NO_FATAL_FAILURE(ExpectGoesOn(memory));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Roads, EveryCall, testing::Range<std::size_t>(0, Roads().size()));

}  // namespace
}  // namespace safety
