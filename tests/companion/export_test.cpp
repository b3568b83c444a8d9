// An export to a file: what was there stays until the new one is complete, and nobody else's file is touched.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "tests/companion/command_test.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/ordinary_user.h"
#include "tests/kit/passing_disk.h"
#include "tests/story/world.h"

namespace companion {
namespace {

namespace fs = std::filesystem;

// Has room for so many bytes of each file.
class SmallDisk final : public kit::PassingDisk {
 public:
  SmallDisk(const std::string& folder, std::int64_t room) : PassingDisk(real_), real_(folder), room_(room) {}

  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    if (offset >= room_) return -ENOSPC;
    return PassingDisk::WriteAt(handle, source, std::min(count, static_cast<std::size_t>(room_ - offset)), offset);
  }

 private:
  runtime::RealDisk real_;
  std::int64_t room_;
};

class ExportTest : public testing::Test {
 protected:
  ExportTest() {
    for (const auto& [name, bytes] : kit::FolderOfFilms(3)) story::WriteBytes(Path(name), bytes);
  }
  fs::path Path(const std::string& name) const { return Folder.Path() / name; }
  std::string Bytes(const std::string& name) const { return story::ReadBytes(Path(name)).value_or("none"); }
  Ran Export(const DiskIn& disk = RealDiskIn) {
    return RunIn(Folder.Path(), {"export", "-o", Path("films.csv")}, disk);
  }

  kit::FreshFolder Folder;
};

TEST_F(ExportTest, LeavesTheUsersFilesAlone) {
  story::WriteBytes(Path("films.csv.new"), "mine");
  story::WriteBytes(Path("precious"), "precious");
  fs::create_symlink("precious", Path("films.csv.2.new"));
  EXPECT_EQ(Export().Status, Done);
  EXPECT_TRUE(Bytes("films.csv").starts_with("Record,"));
  EXPECT_EQ(Bytes("films.csv.new"), "mine");
  EXPECT_EQ(Bytes("precious"), "precious");
  EXPECT_FALSE(fs::exists(Path("films.csv.3.new")));
}

TEST_F(ExportTest, OfManyFilmsIsWhatTheOutputWouldBe) {
  story::WriteBytes(Path("Recpra.Dat"), kit::Films(1, 900));
  EXPECT_EQ(Export().Status, Done);
  EXPECT_GT(Bytes("films.csv").size(), std::size_t{512} * 1024);
  EXPECT_TRUE(Bytes("films.csv") == RunIn(Folder.Path(), {"export"}).Text);
}

TEST_F(ExportTest, ThatFindsTheDiskFullLeavesTheOldFile) {
  story::WriteBytes(Path("films.csv"), "old");
  const Ran ran = Export([](const std::string& folder) { return std::make_unique<SmallDisk>(folder, 100); });
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Errors, Path("films.csv").string() + " cannot be written.\n");
  EXPECT_EQ(Bytes("films.csv"), "old");
  EXPECT_FALSE(fs::exists(Path("films.csv.new")));
}

TEST_F(ExportTest, NamesAFileThatCannotBeLookedAt) {
  fs::create_directory(Path("closed"));
  fs::permissions(Path("closed"), fs::perms::none);
  fs::permissions(Folder.Path(), fs::perms(0755));
  fs::create_symlink("loop", Path("loop"));
  const std::string none = " is there already, and its name is not one of an export.\n", no = " cannot be written.\n";
  const std::map<std::string, std::string> complaints = {
      {std::string(256, 'x'), no}, {"closed/films", no}, {"loop", none}};
  for (const auto& [name, complaint] : complaints) {
    const kit::OrdinaryUser user;
    const Ran ran = RunIn(Folder.Path(), {"export", "-o", Path(name)});
    EXPECT_EQ(ran.Status, Found);
    EXPECT_EQ(ran.Errors, Path(name).string() + complaint);
  }
  fs::permissions(Path("closed"), fs::perms::owner_all);
}

TEST_F(ExportTest, LeavesALinkToNowhereAlone) {
  fs::create_symlink("nowhere", Path("films"));
  EXPECT_EQ(RunIn(Folder.Path(), {"export", "-o", Path("films")}).Status, Found);
  EXPECT_TRUE(fs::is_symlink(Path("films")));
}

TEST_F(ExportTest, KeepsThePermissionsOfTheFileThatItReplaces) {
  const fs::perms own = fs::perms::owner_read | fs::perms::owner_write;
  story::WriteBytes(Path("films.csv"), "old");
  fs::permissions(Path("films.csv"), own);
  EXPECT_EQ(Export().Status, Done);
  EXPECT_EQ(fs::status(Path("films.csv")).permissions(), own);
}

}  // namespace
}  // namespace companion
