// A sort run cut short by a kill, a failure or a loss of power: each key file is the old or the new one, the master
// file is unchanged, and another sort gives the undisturbed result.
#include <gtest/gtest.h>

#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/safety/scenario_run.h"
#include "tests/safety/soundness.h"

namespace safety {
namespace {

class CutSort : public testing::Test {
 protected:
  const Scenario Sorting = {"a sort run", SortedOnce(), {SortFilms()}};
  const kit::Folder New = AllowedFolders(Sorting).back().front();

  // Nine films, sorted; then one was edited and two were added.
  static kit::Folder SortedOnce() {
    kit::MemoryDisk memory(kit::FolderOfFilms(9));
    RunScenario({"", {}, {SortFilms(), EditFilm(7, 1), NewFilm(10, 1), NewFilm(11, 1)}}, memory);
    return memory.Content();
  }

  void ExpectSound(kit::MemoryDisk& memory) {
    StartedProgram started(memory);
    ASSERT_FALSE(started.Program.Stopped());
    kit::Folder found = Visible(memory.Content());
    ASSERT_EQ(found.at(std::string(store::MasterFileName)), New.at(std::string(store::MasterFileName)));
    for (const char* name : {"Titlepra.Dat", "DVDpra.Dat", "Laserpra.Dat", "VHSpra.Dat"}) {
      ASSERT_TRUE(found[name] == New.at(name) || found[name] == Sorting.Before.at(name)) << name;
    }
    SortFilms()(started.Program);
    ASSERT_FALSE(started.Program.Stopped());
    ASSERT_EQ(Visible(memory.Content()), New);
  }
};

TEST_F(CutSort, MakesNewKeys) { EXPECT_NE(New, Visible(Sorting.Before)); }

TEST_F(CutSort, ByAFaultAtEachCall) {
  const std::size_t calls = CallsOf(Sorting);
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::Refused, kit::Fault::Interrupted,
                           kit::Fault::Short, kit::Fault::ShortThenFull, kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t at = 0; at < calls; ++at) {
      for (bool from_then_on : {false, true}) {
        if (fault == kit::Fault::Interrupted && from_then_on) continue;
        SCOPED_TRACE(std::string(NameOf(fault)) + " at call " + std::to_string(at));
        kit::MemoryDisk memory(Sorting.Before);
        kit::FaultyDisk faulty(memory, {fault, at, from_then_on});
        RunScenario(Sorting, faulty);
        ASSERT_NO_FATAL_FAILURE(ExpectSound(memory));
      }
    }
  }
}

TEST_F(CutSort, ByALossOfPowerAtEachMoment) {
  kit::MemoryDisk memory(Sorting.Before);
  RunScenario(Sorting, memory);
  for (std::size_t moment = 0; moment <= memory.Moments(); ++moment) {
    SCOPED_TRACE("moment " + std::to_string(moment));
    for (const kit::Folder& state : memory.AfterPowerLoss(moment, 256)) {
      kit::MemoryDisk left(state);
      ASSERT_NO_FATAL_FAILURE(ExpectSound(left));
    }
  }
}

}  // namespace
}  // namespace safety
