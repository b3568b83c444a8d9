// Files, links, pipes and permissions as the system has them.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "runtime/files.h"
#include "runtime/whole_io.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"
#include "tests/story/world.h"

namespace runtime {
namespace {

namespace fs = std::filesystem;
using Mode = Disk::Mode;

class RealDiskTest : public testing::Test {
 protected:
  fs::path Path(std::string_view name) const { return fresh_.Path() / name; }
  unsigned PermissionsOf(std::string_view name) const {
    struct stat status {};
    EXPECT_EQ(::stat(Path(name).c_str(), &status), 0) << name;
    return status.st_mode & 0777;
  }
  std::string FailureOf(const std::function<void()>& call) {
    try {
      call();
    } catch (const Failure& failure) {
      return std::string(failure.Name) + ": " + failure.File;
    }
    return "";
  }

  kit::FreshFolder fresh_;
  RealDisk disk_{fresh_.Path().string()};
};

TEST_F(RealDiskTest, APipeADeviceAndASocketAreRefusedAtOnce) {
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0666), 0);
  fs::create_symlink("/dev/zero", Path("device"));
  fs::create_directory(Path("folder"));
  for (Mode mode : {Mode::Read, Mode::ReadWrite, Mode::Create}) {
    EXPECT_EQ(disk_.Open("pipe", mode), -EACCES);
    EXPECT_EQ(disk_.Open("device", mode), -EACCES);
    EXPECT_EQ(disk_.Open("folder", mode), -EISDIR);
  }
  Files files(disk_);
  EXPECT_EQ(FailureOf([&] { files.OpenInput(3, "pipe"); }), "Path/File access error: pipe");
  EXPECT_EQ(FailureOf([&] { files.OpenRandom(2, "pipe", 49); }), "Path/File access error: pipe");
}

TEST_F(RealDiskTest, AFileIsLockedOnceUntilItIsClosed) {
  story::WriteBytes(Path("file"), "content");
  const OpenFile second(disk_, "file", Mode::Read);
  {
    const OpenFile first(disk_, "file", Mode::ReadWrite);
    EXPECT_TRUE(first.Lock());
    EXPECT_TRUE(first.Lock());
    EXPECT_FALSE(second.Lock());
  }
  EXPECT_TRUE(second.Lock());
}

TEST_F(RealDiskTest, ALinkInTheSafetyFolderIsNeverFollowed) {
  story::WriteBytes(Path("precious"), "precious");
  fs::create_directory(Path(".reelora"));
  for (const char* name : {"journal", "history", "draft", "Last.new"}) {
    fs::create_symlink("../precious", Path(".reelora") / name);
    for (Mode mode : {Mode::Read, Mode::ReadWrite, Mode::Create})
      EXPECT_EQ(disk_.Open(InSafetyFolder(name), mode), -ELOOP) << name;
    EXPECT_EQ(disk_.Open(InSafetyFolder(name), Mode::CreateNew), -EEXIST) << name;
  }
  ReplaceFile(disk_, "Last", "7");
  EXPECT_EQ(story::ReadBytes(Path("Last")), "7");
  EXPECT_EQ(story::ReadBytes(Path("precious")), "precious");
}

TEST_F(RealDiskTest, ALinkInPlaceOfTheSafetyFolderIsNeverFollowed) {
  fs::create_directory(Path("elsewhere"));
  story::WriteBytes(Path("elsewhere/theirs.new"), "theirs");
  fs::create_directory_symlink("elsewhere", Path(".reelora"));
  EXPECT_EQ(FailureOf([&] { ReplaceFile(disk_, "Last", "7"); }), "Path/File access error: .reelora");
  EXPECT_EQ(disk_.Open(".reelora/journal", Mode::Create), -ELOOP);
  EXPECT_EQ(disk_.List(".reelora"), std::vector<std::string>());
  EXPECT_EQ(disk_.Rename(".reelora/theirs.new", "Last"), -ELOOP);
  EXPECT_EQ(disk_.Rename(".reelora/theirs.new", "Last"), -ELOOP);
  EXPECT_EQ(disk_.Rename("Last", ".reelora/theirs.new"), -ELOOP);
  RemoveLeftovers(disk_);
  Discard(disk_, ".reelora/theirs.new");
  fs::create_directory(Path("elsewhere/empty"));
  EXPECT_EQ(disk_.RemoveFolder(".reelora/empty"), -ELOOP);
  EXPECT_EQ(disk_.RemoveFolder("elsewhere"), -ENOTEMPTY);
  EXPECT_EQ(disk_.RemoveFolder("elsewhere/empty"), 0);
  EXPECT_EQ(story::ReadBytes(Path("elsewhere/theirs.new")), "theirs");
}

TEST_F(RealDiskTest, ACollectionOfLinksWorks) {
  story::WriteBytes(Path("real"), "films");
  fs::create_symlink("real", Path("Recpra.Dat"));
  EXPECT_EQ(OpenFile(disk_, "Recpra.Dat", Mode::Create).Length(), 5);
}

TEST_F(RealDiskTest, NewFilesTakeThePermissionsOfTheModel) {
  story::WriteBytes(Path("Recpra.Dat"), "films");
  for (mode_t permissions : {0600, 0664, 0640}) {
    ASSERT_EQ(::chmod(Path("Recpra.Dat").c_str(), permissions), 0);
    disk_.NewFilesLike("Recpra.Dat");
    ReplaceFile(disk_, "Last", "7");
    const OpenFile journal(disk_, ".reelora/journal", Mode::Create);
    EXPECT_EQ(PermissionsOf("Last"), permissions);
    EXPECT_EQ(PermissionsOf(".reelora/journal"), permissions);
    fs::remove(Path(".reelora/journal"));
  }
}

TEST_F(RealDiskTest, FilesThatAreThereKeepTheirPermissions) {
  story::WriteBytes(Path("Recpra.Dat"), "films");
  story::WriteBytes(Path("Last"), "7");
  ASSERT_EQ(::chmod(Path("Recpra.Dat").c_str(), 0600), 0);
  ASSERT_EQ(::chmod(Path("Last").c_str(), 0640), 0);
  disk_.NewFilesLike("Recpra.Dat");
  for (Mode mode : {Mode::Read, Mode::ReadWrite}) OpenFile(disk_, "Last", mode);
  EXPECT_EQ(PermissionsOf("Last"), 0640U);
}

TEST_F(RealDiskTest, NewFilesAreForEveryoneWhereTheModelIsMissing) {
  disk_.NewFilesLike("Recpra.Dat");
  const mode_t mask = ::umask(0);
  ReplaceFile(disk_, "Last", "7");
  ::umask(mask);
  EXPECT_EQ(PermissionsOf("Last"), 0666U);
}

TEST_F(RealDiskTest, TheSafetyFolderIsForAllWhoCanWriteIntoTheFolder) {
  ASSERT_EQ(::chmod(fresh_.Path().c_str(), 0770), 0);
  const mode_t mask = ::umask(077);
  MakeSafetyFolder(disk_);
  ::umask(mask);
  EXPECT_EQ(PermissionsOf(".reelora"), 0770U);
}

TEST_F(RealDiskTest, AHandleThatIsNotOpenIsAnErrorOfEachCall) {
  FileIdentity identity;
  FileTime time;
  char byte = 0;
  EXPECT_EQ(disk_.ReadAt(-1, &byte, 1, 0), -EBADF);
  EXPECT_EQ(disk_.WriteAt(-1, &byte, 1, 0), -EBADF);
  EXPECT_EQ(disk_.Length(-1), -EBADF);
  EXPECT_EQ(disk_.Truncate(-1, 0), -EBADF);
  EXPECT_EQ(disk_.Sync(-1), -EBADF);
  EXPECT_EQ(disk_.Identify(-1, identity), -EBADF);
  EXPECT_EQ(disk_.Modified(-1, time), -EBADF);
  EXPECT_EQ(disk_.SetModified(-1, time), -EBADF);
}

TEST_F(RealDiskTest, ReservedRoomChangesNeitherLengthNorContent) {
  story::WriteBytes(Path("Last"), "7");
  struct stat before {};
  ASSERT_EQ(::stat(Path("Last").c_str(), &before), 0);
  OpenFile(disk_, "Last", Mode::Create).Reserve(1024 * 1024);
  EXPECT_EQ(story::ReadBytes(Path("Last")), "7");
  struct stat after {};
  ASSERT_EQ(::stat(Path("Last").c_str(), &after), 0);
  EXPECT_GT(after.st_blocks, before.st_blocks);
}

TEST_F(RealDiskTest, ReservingWhatTheSystemRefusesIsNoError) {
  story::WriteBytes(Path("Last"), "7");
  OpenFile(disk_, "Last", Mode::Read).Reserve(1024);
  OpenFile(disk_, "Last", Mode::Create).Reserve(std::int64_t{1} << 62);
  EXPECT_EQ(story::ReadBytes(Path("Last")), "7");
}

TEST_F(RealDiskTest, ATimeThatTheSystemRefusesIsNoError) {
  story::WriteBytes(Path("Recpra.Dat"), "films");
  const OpenFile file(disk_, "Recpra.Dat", Mode::Create);
  file.SetModified({86400, 0});
  constexpr std::int32_t NoNanoseconds = 2'000'000'000;
  file.SetModified({7, NoNanoseconds});
  EXPECT_EQ(file.Modified().Seconds, 86400);
}

TEST_F(RealDiskTest, AMissingFolderIsEmptyAndCannotBeSynced) {
  EXPECT_TRUE(disk_.List("missing").empty());
  EXPECT_EQ(disk_.SyncFolder("missing"), -ENOENT);
}

TEST_F(RealDiskTest, AFolderOfADiskThatSyncsNoneIsNoError) {
  if (!fs::exists("/proc/self")) GTEST_SKIP() << "no disk here that syncs no folders";
  EXPECT_EQ(RealDisk("/proc").SyncFolder(""), 0);
}

TEST_F(RealDiskTest, ATemporaryFileNeverTakesTheNameOfAnother) {
  EXPECT_EQ(CreateFresh(disk_, "Last").Name(), "Last.new");
  EXPECT_EQ(CreateFresh(disk_, "Last").Name(), "Last.2.new");
  EXPECT_EQ(CreateFresh(disk_, "Last").Name(), "Last.3.new");
}

class DiskThatTakesNothing final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  std::int64_t WriteAt(int, const char*, std::size_t, std::int64_t) override { return 0; }
};

TEST_F(RealDiskTest, AWriteThatTakesNothingIsAnError) {
  DiskThatTakesNothing disk(disk_);
  EXPECT_EQ(FailureOf([&] { OpenFile(disk, "Last", Mode::Create).Write("7", 0); }), "Device I/O error: Last");
}

TEST_F(RealDiskTest, NoFolderIsMadeInThePlaceOfAFile) {
  story::WriteBytes(Path(".reelora"), "a file");
  EXPECT_EQ(FailureOf([&] { MakeSafetyFolder(disk_); }), "Path/File access error: .reelora");
  EXPECT_EQ(story::ReadBytes(Path(".reelora")), "a file");
}

// A file of a terabyte takes no room on the disk and must take none in memory.
TEST_F(RealDiskTest, OfAHugeTextFileOnlyTheBeginningIsRead) {
  story::WriteBytes(Path("Last"), "7\r\n8\r\n");
  if (::truncate(Path("Last").c_str(), off_t{1} << 40) != 0) GTEST_SKIP() << "no file of a terabyte on this disk";
  Files files(disk_);
  files.OpenInput(3, "Last");
  EXPECT_EQ(files.ReadItem(3), "7");
  EXPECT_EQ(files.ReadItem(3), "8");
  EXPECT_LT(files.ReadItem(3).size(), 2U * 1024 * 1024);
  EXPECT_EQ(FailureOf([&] { files.ReadItem(3); }), "Input past end of file: Last");
}

}  // namespace
}  // namespace runtime
