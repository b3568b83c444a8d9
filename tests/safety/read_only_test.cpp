// Random steps of a reader in a real folder: the master file and its time stay, and nothing is written beside it.
// REELORA_STEPS asks for another number.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>

#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/safety/reading.h"
#include "tests/safety/steps.h"
#include "tests/story/world.h"

namespace safety {
namespace {

const std::string Master(store::MasterFileName);
constexpr int Films = 60;
constexpr int UsualSteps = 20000;

class ReadOnlyWalk : public testing::Test {
 protected:
  ReadOnlyWalk() {
    kit::Folder folder = kit::FolderOfFilms(Films);
    folder["Last"] = " 7 \r\n";
    for (const auto& [name, content] : folder) story::WriteBytes(Fresh.Path() / name, content);
    StartedProgram sorting(Disk);
    SortFilms()(sorting.Program);
    EXPECT_FALSE(sorting.Program.Stopped());
  }
  timespec Time() const {
    struct stat status {};
    EXPECT_EQ(::stat((Fresh.Path() / Master).c_str(), &status), 0);
    return status.st_mtim;
  }
  // Everything in the folder.
  kit::Folder Content() const {
    kit::Folder content;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(Fresh.Path())) {
      if (entry.is_regular_file()) content[entry.path()] = story::ReadBytes(entry.path()).value_or("");
    }
    return content;
  }

  const kit::FreshFolder Fresh;
  runtime::RealDisk Disk{Fresh.Path().string()};
};

TEST_F(ReadOnlyWalk, LeavesTheMasterFileAndItsTime) {
  const char* asked = std::getenv("REELORA_STEPS");
  const int steps = asked ? std::atoi(asked) : UsualSteps;
  const kit::Folder before = Content();
  const timespec time = Time();
  std::mt19937 random(asked ? 2 : 1);
  ReadersDesk desk(random());
  std::optional<Program> program;
  int starts = 0, stops = 0;
  for (int step = 0; step < steps; ++step) {
    if (!program || program->Ended()) {
      stops += program && program->Stopped() ? 1 : 0;
      program.reset();
      program.emplace(desk, Disk);
      program->StartRecordScreen();
      ++starts;
    }
    Click(*program, Readers()[random() % Readers().size()]);
    ASSERT_TRUE(Time().tv_sec == time.tv_sec && Time().tv_nsec == time.tv_nsec) << "at step " << step;
    if (step % 1000 == 0) {
      ASSERT_EQ(Content(), before) << "at step " << step;
    }
  }
  EXPECT_EQ(Content(), before);
  EXPECT_GT(desk.Printed, steps / 100);
  std::cout << steps << " steps, " << starts << " starts, " << stops << " named failures, " << desk.Printed
            << " printed jobs" << std::endl;
}

}  // namespace
}  // namespace safety
