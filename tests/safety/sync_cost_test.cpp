// What the user waits for, counted in syncs of files and folders.
#include <gtest/gtest.h>

#include "tests/kit/films.h"
#include "tests/kit/passing_disk.h"
#include "tests/safety/steps.h"

namespace safety {
namespace {

class CountingDisk final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int Sync(int handle) override {
    ++Syncs;
    return PassingDisk::Sync(handle);
  }
  int SyncFolder(const std::string& name) override {
    ++Syncs;
    return PassingDisk::SyncFolder(name);
  }
  int Syncs = 0;
};

// A collection that has been in use: its safety folder has all its files.
class SyncCost : public testing::Test {
 protected:
  static kit::Folder Used() {
    kit::Folder folder = kit::FolderOfFilms(9);
    folder["AutoSave"] = folder["AutoSort"] = "YES\r\n";
    kit::MemoryDisk memory(folder);
    StartedProgram started(memory);
    EditFilm(7, 1)(started.Program);
    return memory.Content();
  }
  int Of(const Step& step) {
    const int before = Disk.Syncs;
    step(Started.Program);
    EXPECT_FALSE(Started.Program.Stopped());
    return Disk.Syncs - before;
  }

  kit::MemoryDisk Memory{Used()};
  CountingDisk Disk{Memory};
  StartedProgram Started{Disk};
};

TEST_F(SyncCost, OfAStartIsNone) { EXPECT_EQ(Disk.Syncs, 0); }
TEST_F(SyncCost, OfASavedEditIsThree) { EXPECT_EQ(Of(EditFilm(8, 1)), 3); }
TEST_F(SyncCost, OfASavedNewFilmIsTwo) { EXPECT_EQ(Of(NewFilm(10, 1)), 2); }
TEST_F(SyncCost, OfASettingIsThree) { EXPECT_EQ(Of(WriteSmallFile("Last", "7")), 3); }
// Eight files and two folders.
TEST_F(SyncCost, OfASortRunIsTen) { EXPECT_EQ(Of(SortFilms()), 10); }

TEST_F(SyncCost, OfASettingAfterASortRunIsThree) {
  Of(SortFilms());
  EXPECT_EQ(Of(WriteSmallFile("Last", "7")), 3);
}

TEST_F(SyncCost, OfASettingAfterAFailedSortRunIsThree) {
  const auto fail = [] { throw runtime::Failure{runtime::DiskFull, ""}; };
  EXPECT_THROW(Started.Program.Files.ReplaceTogether(fail), runtime::Failure);
  EXPECT_EQ(Of(WriteSmallFile("Last", "7")), 3);
}

// Leaving the last field saves the film, sorts, and notes the film's number.
TEST_F(SyncCost, OfANewFilmSavedAndSortedByTheAutomaticFlowIsThirteen) {
  frmPage1& screen = Started.Program.RecordScreen;
  Started.Program.Deliver([&] { screen.UserClick(screen.cmdNew); });
  Started.Program.Deliver([&] { kit::TypeFilm(screen, 10, 1); });
  EXPECT_EQ(Of([&](Program& program) { program.Deliver([&] { screen.txtRatings_LostFocus(); }); }), 13);
  EXPECT_EQ(Memory.Content().at("Last"), " 10 \r\n");
  EXPECT_EQ(Memory.Content().at("Titlepra"), " 10\r\n");
}

// The names of new files have to be made durable once.
TEST(SyncCostOfANewCollection, OfTheFirstFilmsIsTwoMore) {
  kit::MemoryDisk memory(kit::FolderOfFilms(9));
  CountingDisk disk(memory);
  StartedProgram started(disk);
  EditFilm(7, 1)(started.Program);
  EXPECT_EQ(disk.Syncs, 5);
  EditFilm(8, 1)(started.Program);
  EXPECT_EQ(disk.Syncs, 8);
}

}  // namespace
}  // namespace safety
