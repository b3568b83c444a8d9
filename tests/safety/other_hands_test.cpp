// Other people's hands: whatever they do to the folder, nothing is lost silently and nothing of theirs is written to.
#include "tests/safety/other_hands.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "app/overwritten_films.h"
#include "runtime/record_journal.h"
#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/ordinary_user.h"
#include "tests/safety/disabled_safeguard.h"
#include "tests/safety/steps.h"
#include "tests/safety/stopped_work.h"
#include "tests/story/world.h"

namespace safety {
namespace {

TEST(OtherHands, AReplacedOrRemovedMasterFileStopsTheSave) { EXPECT_EQ(ReplacedMasterComplaint(), ""); }
// By what the system tells about a name and an open file.
TEST(OtherHands, AReplacedOrRemovedMasterFileOnTheRealDiskStopsTheSave) {
  for (bool removed : {false, true}) {
    SCOPED_TRACE(removed);
    const kit::FreshFolder fresh;
    for (const auto& [name, content] : kit::FolderOfFilms(2)) {
      if (kit::FolderOf(name).empty()) story::WriteBytes(fresh.Path() / name, content);
    }
    runtime::RealDisk disk(fresh.Path().string());
    StartedProgram started(disk);
    EditFilm(1, 1)(started.Program);
    ASSERT_FALSE(started.Program.Stopped());
    const std::filesystem::path master = fresh.Path() / store::MasterFileName;
    const std::string other = kit::Films(5, 9);
    if (removed) {
      std::filesystem::remove(master);
    } else {
      story::WriteBytes(fresh.Path() / "Restored", other);
      std::filesystem::rename(fresh.Path() / "Restored", master);
    }
    EditFilm(2, 2)(started.Program);
    ASSERT_TRUE(started.Program.Stopped());
    EXPECT_EQ(started.Program.Stopped()->Name, runtime::PathError);
    EXPECT_EQ(started.Program.Stopped()->File, store::MasterFileName);
    EXPECT_EQ(std::filesystem::exists(master), !removed);
    if (!removed) {
      EXPECT_EQ(story::ReadBytes(master), other);
    }
  }
}

namespace fs = std::filesystem;

struct HistoryRow {
  const char* Name;
  void (*Plant)(const fs::path& safety, const fs::path& elsewhere);
};
const HistoryRow HistoryRows[] = {
    {"pipe", [](const fs::path& safety, const fs::path&) { ::mkfifo((safety / "history").c_str(), 0600); }},
    {"folder", [](const fs::path& safety, const fs::path&) { fs::create_directory(safety / "history"); }},
    {"link",
     [](const fs::path& safety, const fs::path& elsewhere) {
       story::WriteBytes(elsewhere / "history", "");
       fs::create_symlink(elsewhere / "history", safety / "history");
     }},
    {"unreadable",
     [](const fs::path& safety, const fs::path&) {
       story::WriteBytes(safety / "history", "");
       fs::permissions(safety / "history", fs::perms::none);
     }},
    {"linked folder",
     [](const fs::path& safety, const fs::path& elsewhere) {
       fs::remove(safety);
       fs::create_directory_symlink(elsewhere, safety);
     }},
    {"file for a folder",
     [](const fs::path& safety, const fs::path&) {
       fs::remove(safety);
       story::WriteBytes(safety, "");
     }},
};

// It stops the save that needs it, by name.
TEST(OtherHands, AHistoryThatCannotBeOpenedDoesNotStopTheStart) {
  for (const HistoryRow& row : HistoryRows) {
    SCOPED_TRACE(row.Name);
    const kit::OrdinaryUser user;
    const kit::FreshFolder fresh, elsewhere;
    for (const auto& [name, content] : kit::FolderOfFilms(2)) {
      if (kit::FolderOf(name).empty()) story::WriteBytes(fresh.Path() / name, content);
    }
    fs::create_directory(fresh.Path() / runtime::SafetyFolder);
    row.Plant(fresh.Path() / runtime::SafetyFolder, elsewhere.Path());
    runtime::RealDisk disk(fresh.Path().string());
    StartedProgram started(disk);
    OverwrittenFilms films(started.Program);
    EditFilm(1, 1)(started.Program);
    ASSERT_TRUE(started.Program.Stopped());
    EXPECT_EQ(started.Program.Stopped()->File.substr(0, 8), ".reelora");
    EXPECT_EQ(films.TakeLost().size(), 0U);
    EXPECT_EQ(story::ReadBytes(fresh.Path() / store::MasterFileName), kit::Films(1, 2));
  }
}

TEST(OtherHands, ARestoredBackupStays) { EXPECT_EQ(RestoredBackupComplaint(), ""); }
TEST(OtherHands, APlantedFileIsNotWritten) { EXPECT_EQ(PlantedFileComplaint(), ""); }
TEST(StoppedWork, CostsNoTypingOlderThanTheLastEvent) { EXPECT_EQ(StoppedTypingComplaint(), ""); }
TEST(StoppedWork, LeavesNothingForEver) { EXPECT_EQ(RemainsComplaint(), ""); }
TEST(EndedSort, SurvivesALossOfPower) { EXPECT_EQ(EndedSortComplaint(), ""); }

// The largest piece that is read or written at once.
class Measuring final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    Largest = std::max(Largest, count);
    return PassingDisk::ReadAt(handle, target, count, offset);
  }
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    Largest = std::max(Largest, count);
    return PassingDisk::WriteAt(handle, source, count, offset);
  }
  std::size_t Largest = 0;
};

constexpr int FarSlot = 5000;

TEST(FarSlot, IsWrittenAndRecoveredInPieces) {
  const std::string name = "Recpra.Dat", film = kit::FilmBytes(7, 1);
  kit::MemoryDisk memory(kit::Folder{{name, kit::Films(1, 2) + std::string(100, 'x')}});
  const kit::Folder before = memory.Content();
  DisabledSafeguard unmarked(memory, Safeguard::DoneMark);
  Measuring disk(unmarked);
  const runtime::OpenFile file(disk, name, runtime::Disk::Mode::Create);
  runtime::RecordJournal(disk).Write(file, FarSlot, film);
  const std::string written = memory.Content().at(name);
  std::string expected = before.at(name);
  expected.resize((FarSlot - 1) * store::RecordLength, ' ');
  ASSERT_EQ(written, expected + film);

  runtime::OpenFile(memory, name, runtime::Disk::Mode::ReadWrite).Truncate(1'000'000);
  runtime::RecordJournal(disk).Recover(file, store::RecordLength);
  EXPECT_EQ(memory.Content().at(name), before.at(name)) << "the gap is not cut back";
  EXPECT_LE(disk.Largest, 64U * 1024);
}

}  // namespace
}  // namespace safety
