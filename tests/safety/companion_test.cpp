// The companion puts a film back on a disk whose calls fail, or whose power does: the old film or the new one is left,
// the failure is named, and the next try succeeds.
#include <gtest/gtest.h>

#include <sstream>

#include "companion/command.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"
#include "tests/safety/fault_rows.h"
#include "tests/safety/scenario_run.h"
#include "tests/safety/soundness.h"

namespace safety {
namespace {

class UndoOnABadDisk : public testing::Test {
 protected:
  static kit::Folder Edited() {
    kit::MemoryDisk memory(kit::FolderOfFilms(9));
    RunScenario({"", {}, {EditFilm(7, 1)}}, memory);
    return memory.Content();
  }
  // Returns the exit status; the lock is in a real folder.
  int Undo(runtime::Disk& disk) {
    Complaints.str("");
    std::ostringstream out;
    std::istringstream none;
    companion::Output output{out, Complaints, none};
    return companion::RunCommand({"-C", Locked.Path().string(), "restore", "1", "--write"}, output,
                                 [&](const std::string&) { return std::make_unique<kit::PassingDisk>(disk); });
  }
  std::size_t Calls() {
    kit::MemoryDisk memory(Before);
    kit::FaultyDisk counting(memory);
    EXPECT_EQ(Undo(counting), 0);
    return counting.Calls();
  }
  // What is wrong with a folder in which the film may be back, or must be.
  std::string ComplaintAfter(kit::MemoryDisk& memory, bool done) {
    std::vector<kit::Folder> allowed = {New};
    if (!done) allowed.push_back(Old);
    std::string complaint = Complaint(memory, allowed, Before);
    if (complaint.empty() && Undo(memory) != 0) complaint = "the next undo fails: " + Complaints.str();
    if (complaint.empty() && Visible(memory.Content()) != New) complaint = "the next undo leaves another folder";
    return complaint;
  }

  const kit::FreshFolder Locked;
  const kit::Folder Before = Edited();
  const kit::Folder Old = Visible(Before), New = Visible(kit::FolderOfFilms(9));
  std::ostringstream Complaints;
};

TEST_F(UndoOnABadDisk, FailsNamedAndLeavesTheOldOrTheNew) {
  const std::size_t calls = Calls();
  for (const FaultRow& fault : Faults) {
    for (std::size_t at = 0; at < calls; ++at) {
      SCOPED_TRACE(std::string(fault.Name) + " at call " + std::to_string(at));
      kit::MemoryDisk memory(Before);
      kit::FaultyDisk faulty(memory, {fault.As, at, fault.FromThenOn});
      const bool done = Undo(faulty) == 0;
      if (!done) {
        ASSERT_FALSE(fault.Failure.empty());
        ASSERT_TRUE(Complaints.str().starts_with(fault.Failure)) << Complaints.str();
      }
      ASSERT_EQ(ComplaintAfter(memory, done), "");
    }
  }
}

TEST_F(UndoOnABadDisk, OutlivesAKillAtAnyCall) {
  const std::size_t calls = Calls();
  for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t at = 0; at < calls; ++at) {
      SCOPED_TRACE("killed at call " + std::to_string(at));
      kit::MemoryDisk memory(Before);
      kit::FaultyDisk faulty(memory, {fault, at});
      ASSERT_THROW(Undo(faulty), kit::Killed);
      ASSERT_EQ(ComplaintAfter(memory, false), "");
    }
  }
}

TEST_F(UndoOnABadDisk, OutlivesALossOfPowerAtAnyMoment) {
  constexpr std::size_t MostStates = 128;
  kit::MemoryDisk memory(Before);
  ASSERT_EQ(Undo(memory), 0);
  for (std::size_t moment = 0; moment <= memory.Moments(); ++moment) {
    for (const kit::Folder& state : memory.AfterPowerLoss(moment, MostStates)) {
      kit::MemoryDisk left(state);
      ASSERT_EQ(ComplaintAfter(left, moment == memory.Moments()), "") << moment;
    }
  }
}

}  // namespace
}  // namespace safety
