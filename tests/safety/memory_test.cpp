// A slot far away and a huge file cost no memory: measured in a process of its own, which this program starts from its
// own file.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "companion/command.h"
#include "store/key_file.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/under_sanitizer.h"
#include "tests/safety/disabled_safeguard.h"
#include "tests/safety/steps.h"
#include "tests/story/world.h"

namespace safety {
namespace {

namespace fs = std::filesystem;

constexpr std::int64_t MostKilobytes = 64 * 1024;
constexpr int FarSlot = 300000;
constexpr const char* FolderVariable = "REELORA_MEASURED";

// Of this process, since it was loaded.
std::int64_t PeakKilobytes() {
  std::ifstream status("/proc/self/status");
  std::string word;
  std::int64_t peak = -1;
  while (status >> word) {
    if (word == "VmHWM:") status >> peak;
  }
  return peak;
}

// The part of a test that is measured; run by Measured() alone.
class MeasuredPart : public testing::Test {
 protected:
  void SetUp() override {
    const char* folder = std::getenv(FolderVariable);
    if (!folder) GTEST_SKIP() << "run by another test";
    Folder = folder;
  }
  void TearDown() override {
    if (Folder.empty()) return;
    EXPECT_GT(PeakKilobytes(), 0);
    EXPECT_LE(PeakKilobytes(), MostKilobytes);
  }
  std::string Folder;
};

// Saves a film in a slot far behind the last, to which a wrong key leads, and leaves the journal as a stop would; the
// next start reads the gap.
TEST_F(MeasuredPart, DISABLED_OfAFarSlot) {
  runtime::RealDisk real(Folder);
  {
    DisabledSafeguard unmarked(real, Safeguard::DoneMark);
    StartedProgram started(unmarked);
    started.Program.Deliver([&] { started.Program.RecordScreen.UserClick(started.Program.RecordScreen.mnuByTitle); });
    ASSERT_EQ(started.Program.RecordScreen.CurrentRecNo, FarSlot);
    EditFilm(FarSlot, 1)(started.Program);
    ASSERT_FALSE(started.Program.Stopped()) << started.Program.Stopped()->Name;
  }
  StartedProgram started(real);
  ASSERT_FALSE(started.Program.Stopped());
  started.Program.Deliver([&] { started.Program.RecordScreen.UserClick(started.Program.RecordScreen.mnuLast); });
  EXPECT_EQ(started.Program.RecordScreen.CurrentRecNo, FarSlot);
  EXPECT_EQ(started.Program.RecordScreen.txtTitle.Text(), kit::FilmBytes(FarSlot, 1).substr(0, 40));
}

// Start, browse, save.
TEST_F(MeasuredPart, DISABLED_OfAHugeMasterFile) {
  runtime::RealDisk real(Folder);
  StartedProgram started(real);
  GoTo(started.Program, 5);
  for (int step = 0; step < 20; ++step)
    started.Program.Deliver([&] { started.Program.RecordScreen.UserClick(started.Program.RecordScreen.cmdPrevious); });
  EditFilm(7, 1)(started.Program);
  ASSERT_FALSE(started.Program.Stopped()) << started.Program.Stopped()->Name;
  StartedProgram again(real);
  GoTo(again.Program, 7);
  EXPECT_EQ(again.Program.RecordScreen.txtTitle.Text(), kit::FilmBytes(7, 1).substr(0, 40));
}

// The companion lists it, or says that it does not.
TEST_F(MeasuredPart, DISABLED_OfAHugeHistory) {
  std::ostringstream out, errors;
  std::istringstream none;
  companion::Output output{out, errors, none};
  EXPECT_EQ(companion::RunCommand({"-C", Folder, "history"}, output), 1);
  EXPECT_TRUE(errors.str().starts_with("The history is damaged")) << errors.str();
  errors.str("");
  EXPECT_EQ(companion::RunCommand({"-C", Folder, "restore", "1000000000"}, output), 1);
  EXPECT_EQ(errors.str(), "There is no entry 1000000000.\n");
  runtime::RealDisk real(Folder);
  StartedProgram started(real);
  EditFilm(1, 1)(started.Program);
  EXPECT_FALSE(started.Program.Stopped());
}

class Memory : public testing::Test {
 protected:
  Memory() {
    for (const auto& [name, content] : kit::FolderOfFilms(8)) story::WriteBytes(Fresh.Path() / name, content);
  }
  // Whether that part succeeds in a process of its own.
  bool Measured(const std::string& part) {
    const std::string filter = "--gtest_filter=MeasuredPart.DISABLED_" + part;
    const std::string folder = Fresh.Path();
    const pid_t child = ::fork();
    if (child == 0) {
      ::setenv(FolderVariable, folder.c_str(), 1);
      for (const char* shard : {"GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX"}) ::unsetenv(shard);
      ::execl("/proc/self/exe", "measured", filter.c_str(), "--gtest_also_run_disabled_tests", "--gtest_brief=1",
              nullptr);
      ::_exit(127);
    }
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }
  // False where the disk cannot have such a file.
  bool Grow(const std::string& name, std::int64_t length) {
    return ::truncate((Fresh.Path() / name).c_str(), length) == 0;
  }
  void SetUp() override {
    if (kit::UnderSanitizer) GTEST_SKIP() << "the sanitizer takes more memory than the program";
  }

  const kit::FreshFolder Fresh;
};

TEST_F(Memory, OfAFarSlotIsSmallAtItsSaveAndAtTheNextStart) {
  story::WriteBytes(Fresh.Path() / store::TitleKeys.Name, std::string(store::KeyTitleWidth, 'x') + " 300000\r\n");
  story::WriteBytes(Fresh.Path() / store::TitleKeys.CountFile, " 1 \r\n");
  EXPECT_TRUE(Measured("OfAFarSlot"));
  EXPECT_EQ(fs::file_size(Fresh.Path() / store::MasterFileName), std::uintmax_t{FarSlot} * store::RecordLength);
}

TEST_F(Memory, OfAMasterFileOfAGigabyteIsSmall) {
  if (!Grow(std::string(store::MasterFileName), std::int64_t{1} << 30)) GTEST_SKIP() << "no such file on this disk";
  EXPECT_TRUE(Measured("OfAHugeMasterFile"));
}

TEST_F(Memory, OfAHistoryOfATerabyteIsSmall) {
  fs::create_directory(Fresh.Path() / ".reelora");
  story::WriteBytes(Fresh.Path() / ".reelora/history", "");
  if (!Grow(".reelora/history", std::int64_t{1} << 40)) GTEST_SKIP() << "no such file on this disk";
  EXPECT_TRUE(Measured("OfAHugeHistory"));
}

}  // namespace
}  // namespace safety
