// What a stop has left of a copy goes with the next one; a copy, and whatever is not ours, stays.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/companion/command_test.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"
#include "tests/story/world.h"

namespace companion {
namespace {

namespace fs = std::filesystem;

const std::string Name = "Collection 2026-11-22 05-31-34";

class UnfinishedCopies : public testing::Test {
 protected:
  UnfinishedCopies() {
    for (const auto& [name, bytes] : kit::FolderOfFilms(3)) story::WriteBytes(Folder.Path() / name, bytes);
    fs::create_directory(Copies());
  }
  fs::path Copies() const { return Folder.Path() / "backups"; }
  static void Put(const fs::path& file) {
    fs::create_directories(file.parent_path());
    story::WriteBytes(file, "bytes");
  }
  static void PutUnfinished(const fs::path& folder) {
    for (const char* name : {"AutoSave", "Last.new", ".reelora/history", ".reelora/history.new", "Recpra.Dat.new"})
      Put(folder / name);
  }
  int Backup(const DiskIn& disk = RealDiskIn) { return RunIn(Folder.Path(), {"backup", "--write"}, disk).Status; }
  std::ptrdiff_t CountOfCopies() const {
    return std::distance(fs::directory_iterator(Copies()), fs::directory_iterator());
  }

  kit::FreshFolder Folder, Elsewhere;
};

TEST_F(UnfinishedCopies, GoWithTheNextCopy) {
  PutUnfinished(Copies() / Name);
  Put(Copies() / (Name + ".zip.new"));
  EXPECT_EQ(Backup(), Done);
  EXPECT_EQ(CountOfCopies(), 1);
}

TEST_F(UnfinishedCopies, GoIfTheyAreEmpty) {
  fs::create_directory(Copies() / Name);
  EXPECT_EQ(Backup(), Done);
  EXPECT_EQ(CountOfCopies(), 1);
}

TEST_F(UnfinishedCopies, AreNotThoseFromWhichTheFilmsWereTaken) {
  EXPECT_EQ(Backup(), Done);
  const fs::path copy = fs::directory_iterator(Copies())->path();
  Put(copy / ".reelora/history");
  fs::rename(copy / "Recpra.Dat", Elsewhere.Path() / "Recpra.Dat");
  EXPECT_EQ(Backup(), Done);
  EXPECT_EQ(CountOfCopies(), 2);
  EXPECT_TRUE(fs::exists(copy / ".reelora/history"));
}

TEST_F(UnfinishedCopies, StayIfAnotherFileIsThere) {
  for (const char* name : {"Recpra.Dat", "notes.txt", ".reelora/journal"}) {
    PutUnfinished(Copies() / Name);
    Put(Copies() / Name / name);
    EXPECT_EQ(Backup(), Done);
    for (const char* other : {name, "AutoSave", "Last.new", ".reelora/history"})
      EXPECT_TRUE(fs::exists(Copies() / Name / other)) << name << other;
    fs::remove_all(Copies() / Name);
  }
}

TEST_F(UnfinishedCopies, AreOnlyThoseOfOurNames) {
  const fs::path others[] = {Copies() / "mine.zip.new",           Copies() / "Collection.zip.new",
                             Copies() / (Name + " mine.zip.new"), Copies() / (Name + ".zip"),
                             Copies() / (Name + ".new"),          Copies() / "Collection mine/AutoSave"};
  for (const fs::path& other : others) Put(other);
  EXPECT_EQ(Backup(), Done);
  for (const fs::path& other : others) EXPECT_TRUE(fs::exists(other)) << other;
}

TEST_F(UnfinishedCopies, AreNotRemovedThroughALink) {
  PutUnfinished(Elsewhere.Path());
  fs::create_directory_symlink(Elsewhere.Path(), Copies() / Name);
  fs::create_directory(Copies() / "Collection 2026-11-22 05-31-35");
  fs::create_directory_symlink(Elsewhere.Path(), Copies() / "Collection 2026-11-22 05-31-35" / ".reelora");
  EXPECT_EQ(Backup(), Done);
  EXPECT_TRUE(fs::is_symlink(Copies() / Name));
  for (const char* name : {"AutoSave", "Last.new", ".reelora/history"})
    EXPECT_TRUE(fs::exists(Elsewhere.Path() / name)) << name;
}

// A disk on which the list of a copy cannot be read.
class UnlistedDisk final : public kit::PassingDisk {
 public:
  explicit UnlistedDisk(const std::string& folder)
      : PassingDisk(real_), real_(folder), is_copy_(folder.ends_with(Name)) {}

  std::vector<std::string> List(const std::string& folder) override {
    return is_copy_ && folder.empty() ? std::vector<std::string>() : PassingDisk::List(folder);
  }

 private:
  runtime::RealDisk real_;
  bool is_copy_;
};

TEST_F(UnfinishedCopies, AreNoneIfTheFilmsAreThere) {
  Put(Copies() / Name / "Recpra.Dat");
  Put(Copies() / Name / ".reelora/history");
  EXPECT_EQ(Backup([](const std::string& folder) { return std::make_unique<UnlistedDisk>(folder); }), Done);
  EXPECT_TRUE(fs::exists(Copies() / Name / ".reelora/history"));
}

// A disk that has room for all but the films.
class AlmostFullDisk final : public kit::PassingDisk {
 public:
  explicit AlmostFullDisk(const std::string& folder) : PassingDisk(real_), real_(folder) {}

  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    return NameOf(handle) == "Recpra.Dat.new" ? -ENOSPC : PassingDisk::WriteAt(handle, source, count, offset);
  }

 private:
  runtime::RealDisk real_;
};

TEST_F(UnfinishedCopies, GoAtOnceIfTheDiskIsFull) {
  EXPECT_EQ(Backup([](const std::string& folder) { return std::make_unique<AlmostFullDisk>(folder); }), Found);
  EXPECT_EQ(CountOfCopies(), 0);
}

}  // namespace
}  // namespace companion
