// A copy counts only if it can be read back, and nothing is replaced before the present collection has been copied.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <set>

#include "companion/writing.h"
#include "launcher/copies.h"
#include "runtime/clock.h"
#include "runtime/copies_lock.h"
#include "tests/companion/command_test.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/ordinary_user.h"
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

std::set<std::string> NamesBelow(const fs::path& folder) {
  std::set<std::string> names;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) names.insert(entry.path());
  return names;
}

// What the other run has written so far would count as unfinished, and its zip may have the same name.
TEST_F(BackupTest, IsRefusedWhileAnotherIsWrittenToTheFolder) {
  const fs::path own = Folder.Path() / "backups", begun = "Collection 2026-11-22 05-31-34/Recpra.Dat.new";
  for (const fs::path& copies : {own, Elsewhere.Path()}) {
    fs::create_directories((copies / begun).parent_path());
    story::WriteBytes(copies / begun, "");
    const std::set<std::string> before = NamesBelow(copies);
    std::vector<std::string> arguments = {"backup", "--write"};
    if (copies != own) arguments.insert(arguments.end(), {"--zip", "--to", copies});
    {
      const runtime::CopiesLock other(copies);
      const Ran ran = RunIn(Folder.Path(), arguments);
      EXPECT_EQ(ran.Status, Found);
      EXPECT_EQ(ran.Errors, "Another backup is being written there.\n");
      EXPECT_EQ(ran.Text, "");
      EXPECT_EQ(NamesBelow(copies), before);
    }
    EXPECT_EQ(RunIn(Folder.Path(), arguments).Status, Done);
    EXPECT_FALSE(fs::exists(copies / begun));
  }
}

TEST_F(BackupTest, IsNotPutBackWhileThePresentCollectionCannotBeCopied) {
  fs::create_directory(Folder.Path() / "backups");
  const std::vector<std::string> arguments = {"restore-backup", Other.Path(), "--write"};
  {
    const runtime::CopiesLock other(Folder.Path() / "backups");
    const Ran ran = RunIn(Folder.Path(), arguments);
    EXPECT_EQ(ran.Status, Found);
    EXPECT_EQ(ran.Errors, "Another backup is being written there. Nothing was put back.\n");
    EXPECT_EQ(Master(), kit::Films(1, 3));
  }
  EXPECT_EQ(RunIn(Folder.Path(), arguments).Status, Done);
  EXPECT_EQ(Master(), kit::Films(7, 9));
}

// Counts the calls on copies during which another run might begin one.
class GuardedDisk final : public kit::PassingDisk {
 public:
  GuardedDisk(const std::string& folder, std::string copies, int& unguarded)
      : PassingDisk(real_), real_(folder), copies_(std::move(copies)), unguarded_(unguarded) {
    guards_ = folder.starts_with(copies_);
  }

  std::vector<std::string> List(const std::string& folder) override { return Look(), PassingDisk::List(folder); }
  int Remove(const std::string& name) override { return Look(), PassingDisk::Remove(name); }
  int Open(const std::string& name, Mode mode) override { return Look(), PassingDisk::Open(name, mode); }
  int Rename(const std::string& from, const std::string& to) override { return Look(), PassingDisk::Rename(from, to); }

 private:
  void Look() { unguarded_ += guards_ && runtime::CopiesLock(copies_).Held(); }

  runtime::RealDisk real_;
  std::string copies_;
  int& unguarded_;
  bool guards_ = false;
};

TEST_F(BackupTest, HasTheFolderToItselfUntilItHasBeenReadBack) {
  fs::create_directories(Elsewhere.Path() / "Collection 2026-11-22 05-31-34");
  story::WriteBytes(Elsewhere.Path() / "Collection 2026-11-22 05-31-35.zip.new", "PK");
  int unguarded = 0;
  const auto guarded = [&](const std::string& folder) {
    return std::make_unique<GuardedDisk>(folder, Elsewhere.Path(), unguarded);
  };
  EXPECT_EQ(RunIn(Folder.Path(), {"backup", "--to", Elsewhere.Path(), "--write"}, guarded).Status, Done);
  EXPECT_EQ(RunIn(Folder.Path(), {"backup", "--to", Elsewhere.Path(), "--zip", "--write"}, guarded).Status, Done);
  EXPECT_EQ(unguarded, 0);
  EXPECT_EQ(std::distance(fs::directory_iterator(Elsewhere.Path()), fs::directory_iterator()), 2);
}

// Of this second and the next ones.
TEST_F(BackupTest, ReplacesNoZipThatIsThere) {
  const std::chrono::local_seconds now = runtime::LocalTime();
  for (int later = 0; later < 30; ++later) {
    std::string films = launcher::NameOfCopy(now + std::chrono::seconds(later));
    films = films.substr(films.find(' '), 20);
    story::WriteBytes(Elsewhere.Path() / ("Collection" + films + ".zip"), "another");
  }
  EXPECT_EQ(RunIn(Folder.Path(), {"backup", "--to", Elsewhere.Path(), "--zip", "--write"}).Status, Done);
  int others = 0;
  for (const fs::directory_entry& zip : fs::directory_iterator(Elsewhere.Path()))
    others += story::ReadBytes(zip.path()) == "another";
  EXPECT_EQ(others, 30);
  EXPECT_EQ(std::distance(fs::directory_iterator(Elsewhere.Path()), fs::directory_iterator()), 31);
}

TEST_F(BackupTest, IsNotPutInPlaceOfALink) {
  fs::rename(Folder.Path() / "Recpra.Dat", Elsewhere.Path() / "mine.Dat");
  fs::create_symlink(Elsewhere.Path() / "mine.Dat", Folder.Path() / "Recpra.Dat");
  const std::set<std::string> before = NamesBelow(Folder.Path());
  for (const std::vector<std::string>& writing : {std::vector<std::string>{}, {"--write"}}) {
    std::vector<std::string> arguments = {"restore-backup", Other.Path()};
    arguments.insert(arguments.end(), writing.begin(), writing.end());
    const Ran ran = RunIn(Folder.Path(), arguments);
    EXPECT_EQ(ran.Status, Found);
    EXPECT_EQ(ran.Errors,
              "Recpra.Dat is a link, which a copy would replace. Nothing was put back. Move the file that it leads to "
              "here first, in its place.\n");
    EXPECT_EQ(NamesBelow(Folder.Path()), before);
  }
  EXPECT_EQ(Master(), kit::Films(1, 3));
  // A link to nothing is not a lost master file.
  fs::remove(Elsewhere.Path() / "mine.Dat");
  EXPECT_EQ(RunIn(Folder.Path(), {"restore-backup", Other.Path(), "--write"}).Status, Found);
  EXPECT_TRUE(fs::is_symlink(Folder.Path() / "Recpra.Dat"));
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

TEST_F(BackupTest, IsNotMissingBecauseItsFolderCannotBeListed) {
  EXPECT_EQ(RunIn(Folder.Path(), {"backups", "--json"}).Text, "[]\n");
  fs::create_directory(Folder.Path() / "backups");
  EXPECT_EQ(RunIn(Folder.Path(), {"backups", "--json"}).Text, "[]\n");
  fs::permissions(Folder.Path(), fs::perms(0755));
  fs::permissions(Folder.Path() / "backups", fs::perms::none);
  Ran ran;
  {
    const kit::OrdinaryUser user;
    ran = RunIn(Folder.Path(), {"backups"});
  }
  fs::permissions(Folder.Path() / "backups", fs::perms::owner_all);
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Errors, "The folder " + Folder.Path().string() + "/backups cannot be listed.\n");
  EXPECT_EQ(ran.Text, "");
}

}  // namespace
}  // namespace companion
