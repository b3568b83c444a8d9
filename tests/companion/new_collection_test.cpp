// import makes a collection in an empty folder, and what stops it there.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/companion/command_test.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/ordinary_user.h"
#include "tests/story/world.h"

namespace companion {
namespace {

namespace fs = std::filesystem;

class NewCollectionTest : public testing::Test {
 protected:
  NewCollectionTest() {
    fs::create_directory(Empty);
    story::WriteBytes(List, "Title\nBrazil\nAlien\n");
    fs::permissions(Machine.Path(), fs::perms(0755));
  }
  Ran Import(const std::string& delivered = kit::DeliveredFolder()) {
    std::ostringstream text, errors;
    std::istringstream none;
    Output output{text, errors, none};
    const int status = RunCommand({"-C", Empty, "import", List, "--write", "--sort"}, output, RealDiskIn, delivered);
    return {status, text.str(), errors.str()};
  }

  const kit::FreshFolder Machine;
  const fs::path Empty = Machine.Path() / "films";
  const fs::path List = Machine.Path() / "list.csv";
};

TEST_F(NewCollectionTest, HasTheDeliveredFilesAndTheFilms) {
  const Ran ran = Import();
  EXPECT_EQ(ran.Status, Done) << ran.Errors;
  EXPECT_TRUE(ran.Text.starts_with("A new collection was made in " + Empty.string() + ".\n")) << ran.Text;
  EXPECT_EQ(story::ReadBytes(Empty / "Recpra.Dat")->size(), 2U * 649);
  for (const auto& entry : fs::directory_iterator(kit::DeliveredFolder())) {
    const fs::path name = entry.path().filename();
    EXPECT_EQ(fs::exists(Empty / name), name != "sample") << name;
  }
  EXPECT_EQ(RunIn(Empty, {"check"}).Text, "Everything is in order.\n");
  EXPECT_FALSE(Import().Text.starts_with("A new collection"));
}

TEST_F(NewCollectionTest, IsNotMadeWithoutTheDeliveredFiles) {
  const Ran ran = Import("");
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Errors, "The files that come with Reelora Prima are missing. Install Reelora Prima again.\n");
  EXPECT_FALSE(fs::exists(Empty / "Recpra.Dat"));
}

TEST_F(NewCollectionTest, TellsOfADeliveredFileThatIsEmpty) {
  const kit::FreshFolder delivered;
  story::WriteBytes(delivered.Path() / "AutoSave", "");
  story::WriteBytes(delivered.Path() / "UPPER.ALT", std::string(256, 'A'));
  const Ran ran = Import(delivered.Path());
  EXPECT_EQ(ran.Status, Done);
  EXPECT_EQ(ran.Errors, "The file AutoSave that comes with Reelora Prima is empty. Install Reelora Prima again.\n");
  EXPECT_EQ(story::ReadBytes(Empty / "Recpra.Dat")->size(), 2U * 649);
}

TEST_F(NewCollectionTest, IsNotMadeInAReadOnlyFolder) {
  fs::permissions(Empty, fs::perms(0555));
  Ran ran;
  {
    kit::OrdinaryUser user;
    ran = Import();
  }
  fs::permissions(Empty, fs::perms::owner_all);
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Text, "");
  EXPECT_TRUE(ran.Errors.starts_with("Path/File access error: " + Empty.string() + "/")) << ran.Errors;
  EXPECT_TRUE(fs::is_empty(Empty));
}

TEST_F(NewCollectionTest, IsNotMadeWhereTheFolderCannotBeRead) {
  fs::permissions(Empty, fs::perms::none);
  Ran ran;
  {
    kit::OrdinaryUser user;
    ran = Import();
  }
  fs::permissions(Empty, fs::perms::owner_all);
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Errors, "Path/File access error: " + Empty.string() + "/Recpra.Dat\n");
  EXPECT_TRUE(fs::is_empty(Empty));
}

}  // namespace
}  // namespace companion
