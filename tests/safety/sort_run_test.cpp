// A sort run that a kill, a failure or a loss of power cuts short: every key file is the old one or the new one, the
// master file is as it was, and one more sort makes what an undisturbed one makes.
#include <gtest/gtest.h>

#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/safety/complaint.h"
#include "tests/safety/played.h"

namespace safety {
namespace {

class CutSort : public testing::Test {
 protected:
  const Road Sorting = {"a sort run", SortedOnce(), {SortFilms()}};
  const kit::Folder New = Stations(Sorting).back().front();

  // Sorted with nine films, of which one has changed since and two have come.
  static kit::Folder SortedOnce() {
    kit::MemoryDisk memory(kit::FolderOfFilms(9));
    Play({"", {}, {SortFilms(), EditFilm(7, 1), NewFilm(10, 1), NewFilm(11, 1)}}, memory);
    return memory.Content();
  }

  void ExpectSound(kit::MemoryDisk& memory) {
    Running run(memory);
    ASSERT_FALSE(run.Program.Stopped());
    kit::Folder found = Visible(memory.Content());
    ASSERT_EQ(found.at(std::string(store::MasterFileName)), New.at(std::string(store::MasterFileName)));
    for (const char* name : {"Titlepra.Dat", "DVDpra.Dat", "Laserpra.Dat", "VHSpra.Dat"}) {
      ASSERT_TRUE(found[name] == New.at(name) || found[name] == Sorting.Before.at(name)) << name;
    }
    SortFilms()(run.Program);
    ASSERT_FALSE(run.Program.Stopped());
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
        SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " at call " + std::to_string(at));
        kit::MemoryDisk memory(Sorting.Before);
        kit::FaultyDisk faulty(memory, {fault, at, from_then_on});
        Play(Sorting, faulty);
        ASSERT_NO_FATAL_FAILURE(ExpectSound(memory));
      }
    }
  }
}

TEST_F(CutSort, ByALossOfPowerAtEachMoment) {
  kit::MemoryDisk memory(Sorting.Before);
  Play(Sorting, memory);
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
