// The companion's sort writes the files that the program's sort writes, byte for byte.
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "companion/command.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"
#include "tests/kit/source_tree.h"
#include "tests/safety/soundness.h"
#include "tests/safety/steps.h"
#include "tests/story/world.h"

namespace companion {
namespace {

class SortVerb : public testing::Test {
 protected:
  static kit::Folder SortedByTheProgram(const kit::Folder& before) {
    kit::MemoryDisk memory(before);
    safety::StartedProgram started(memory);
    safety::SortFilms()(started.Program);
    EXPECT_FALSE(started.Program.Stopped());
    return safety::Visible(memory.Content());
  }
  kit::Folder SortedByTheCompanion(const kit::Folder& before) {
    kit::MemoryDisk memory(before);
    std::ostringstream text, errors;
    std::istringstream none;
    Output output{text, errors, none};
    EXPECT_EQ(RunCommand({"-C", Locked.Path(), "sort", "--write"}, output,
                         [&](const std::string&) { return std::make_unique<kit::PassingDisk>(memory); }),
              Done)
        << errors.str();
    return safety::Visible(memory.Content());
  }
  void ExpectSame(const std::string& master) {
    kit::Folder before = kit::FolderOfFilms(0);
    before["Recpra.Dat"] = master;
    EXPECT_EQ(SortedByTheCompanion(before), SortedByTheProgram(before));
  }

  const kit::FreshFolder Locked;
};

TEST_F(SortVerb, MakesTheFilesOfTheProgram) {
  ExpectSame("");
  ExpectSame(kit::Films(1, 9));
  ExpectSame(*story::ReadBytes(kit::SampleFile()));
}

TEST_F(SortVerb, MakesThemOfAnyBytes) {
  std::mt19937 random(16);
  for (int round = 0; round < 40; ++round) {
    std::string master(random() % (649 * 40), ' ');
    for (char& byte : master) {
      if (random() % 3 == 0) byte = static_cast<char>(random());
    }
    for (std::size_t at = 265; at < master.size(); at += 649) master[at] = "DLVx"[random() % 4];
    SCOPED_TRACE(round);
    ExpectSame(master);
  }
}

}  // namespace
}  // namespace companion
