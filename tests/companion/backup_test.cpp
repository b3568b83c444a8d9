// A copy counts only if it can be read back, and nothing is replaced before the present collection has been copied.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <set>

#include "companion/writing.h"
#include "tests/companion/command_test.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"
#include "tests/story/world.h"

namespace companion {
namespace {

namespace fs = std::filesystem;

// A folder of this machine; what is read of a copy of the collection differs in a byte from what was written.
class ForgetfulDisk final : public kit::PassingDisk {
 public:
  explicit ForgetfulDisk(const std::string& folder)
      : PassingDisk(real_), real_(folder), forgets_(folder.find("/Collection ") != std::string::npos) {}

  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    const std::int64_t read = PassingDisk::ReadAt(handle, target, count, offset);
    if (forgets_ && read > 0) target[0] = static_cast<char>(target[0] ^ 1);
    return read;
  }

 private:
  runtime::RealDisk real_;
  bool forgets_;
};

std::unique_ptr<runtime::Disk> Forgetful(const std::string& folder) { return std::make_unique<ForgetfulDisk>(folder); }

class BackupTest : public testing::Test {
 protected:
  BackupTest() {
    for (const auto& [name, bytes] : kit::FolderOfFilms(3)) story::WriteBytes(Folder.Path() / name, bytes);
    story::WriteBytes(Other.Path() / "Recpra.Dat", kit::Films(7, 9));
  }
  std::string Master() { return *story::ReadBytes(Folder.Path() / "Recpra.Dat"); }

  kit::FreshFolder Folder, Other, Elsewhere;
};

TEST_F(BackupTest, IsNoneIfItCannotBeReadBack) {
  const Ran ran = RunIn(Folder.Path(), {"backup", "--write"}, Forgetful);
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Errors, "The copy cannot be read back.\n");
  EXPECT_EQ(ran.Text, "");
}

TEST_F(BackupTest, OfThePresentCollectionComesBeforeAnotherIsPutBack) {
  const Ran ran = RunIn(Folder.Path(), {"restore-backup", Other.Path(), "--write"}, Forgetful);
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Errors, "The present collection cannot be copied first. Nothing was put back.\n");
  EXPECT_EQ(Master(), kit::Films(1, 3));
  EXPECT_EQ(RunIn(Folder.Path(), {"restore-backup", Other.Path().string() + "/", "--write"}).Status, Done);
  EXPECT_EQ(Master(), kit::Films(7, 9));
}

TEST_F(BackupTest, IsPutBackIfTheMasterFileIsLost) {
  EXPECT_EQ(RunIn(Folder.Path(), {"backup", "--write"}).Status, Done);
  const std::string copy = fs::directory_iterator(Folder.Path() / "backups")->path().filename();
  fs::remove(Folder.Path() / "Recpra.Dat");
  EXPECT_EQ(
      RunIn(Folder.Path(), {"restore-backup", copy}).Text,
      "3 films in 13 files would be put back, after a copy of what is there now.\n" + std::string(NothingWritten));
  EXPECT_FALSE(fs::exists(Folder.Path() / "Recpra.Dat"));
  const Ran ran = RunIn(Folder.Path(), {"restore-backup", copy, "--write"});
  EXPECT_EQ(ran.Status, Done) << ran.Errors;
  EXPECT_EQ(ran.Text.substr(0, 43), "3 films put back. What was there, 0 films, ");
  EXPECT_EQ(Master(), kit::Films(1, 3));
}

TEST_F(BackupTest, IsNotPutIntoAFolderOfOtherFiles) {
  story::WriteBytes(Elsewhere.Path() / "notes.txt", "mine");
  const Ran ran = RunIn(Elsewhere.Path(), {"restore-backup", Other.Path(), "--write"});
  EXPECT_EQ(ran.Status, Found);
  EXPECT_NE(ran.Errors.find("has other files in it, and no collection"), std::string::npos) << ran.Errors;
  EXPECT_FALSE(fs::exists(Elsewhere.Path() / "Recpra.Dat"));
}

TEST_F(BackupTest, IsRefusedIfTheCollectionIsTooLarge) {
  std::filesystem::resize_file(Folder.Path() / "Recpra.Dat", std::uintmax_t{513} << 20);
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"backup"}, {"backup", "--write"}, {"restore-backup", Other.Path(), "--write"}}) {
    const Ran ran = RunIn(Folder.Path(), arguments);
    EXPECT_EQ(ran.Status, Found);
    EXPECT_EQ(ran.Errors, "The collection is too large for a copy.\n");
  }
}

// Of all files below a folder.
std::set<fs::perms> PermissionsBelow(const fs::path& folder) {
  std::set<fs::perms> permissions;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) permissions.insert(entry.status().permissions());
  }
  return permissions;
}

TEST_F(BackupTest, IsNoMoreReadableThanTheFilms) {
  const fs::perms own = fs::perms::owner_read | fs::perms::owner_write;
  const fs::path copies = Folder.Path() / "backups";
  fs::create_directory(Folder.Path() / ".reelora");
  story::WriteBytes(Folder.Path() / ".reelora/history", "");
  fs::permissions(Folder.Path() / "Recpra.Dat", own);
  const mode_t mask = ::umask(022);
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"backup"},
                                                    {"backup", "--zip"},
                                                    {"backup", "--to", Elsewhere.Path()},
                                                    {"backup", "--zip", "--to", Elsewhere.Path()},
                                                    {"restore-backup", Other.Path()}}) {
    std::vector<std::string> writing = arguments;
    writing.push_back("--write");
    EXPECT_EQ(RunIn(Folder.Path(), writing).Status, Done);
    const fs::path& folder = arguments.size() > 2 ? Elsewhere.Path() : copies;
    EXPECT_EQ(PermissionsBelow(folder), std::set{own}) << arguments[0] << arguments.size();
    for (const fs::directory_entry& copy : fs::directory_iterator(folder)) fs::remove_all(copy);
  }
  ::umask(mask);
}

}  // namespace
}  // namespace companion
