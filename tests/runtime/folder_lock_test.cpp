// Two runs in one folder.
#include "runtime/folder_lock.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "tests/kit/fresh_folder.h"
#include "tests/kit/ordinary_user.h"

namespace runtime {
namespace {

TEST(FolderLock, HoldsTheFolderAgainstASecondRunUntilItGoes) {
  kit::FreshFolder folder;
  {
    FolderLock first(folder.Path().string());
    EXPECT_TRUE(first.Held());
    EXPECT_FALSE(FolderLock(folder.Path().string()).Held());
  }
  EXPECT_TRUE(FolderLock(folder.Path().string()).Held());
}

TEST(FolderLock, LiesInTheFoldersOwnSubfolder) {
  kit::FreshFolder folder;
  FolderLock lock(folder.Path().string());
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / ".reelora/lock"));
}

bool HeldByAnotherUser(const std::string& folder) {
  kit::OrdinaryUser user;
  return FolderLock(folder).Held();
}

TEST(FolderLock, HoldsTheFolderAgainstAnotherUser) {
  kit::FreshFolder folder;
  const std::filesystem::path lock = folder.Path() / ".reelora/lock";
  chmod(folder.Path().c_str(), 0777);
  {
    FolderLock first(folder.Path().string());
    for (mode_t permissions : {0666, 0444, 0000}) {
      chmod(lock.c_str(), permissions);
      EXPECT_FALSE(HeldByAnotherUser(folder.Path().string())) << std::oct << permissions;
    }
  }
  chmod(lock.c_str(), 0444);
  EXPECT_TRUE(HeldByAnotherUser(folder.Path().string()));
}

TEST(FolderLock, IsForEveryUserWhateverTheMask) {
  kit::FreshFolder folder;
  const mode_t mask = umask(077);
  FolderLock lock(folder.Path().string());
  umask(mask);
  struct stat status {};
  ASSERT_EQ(stat((folder.Path() / ".reelora/lock").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0666U);
}

TEST(FolderLock, NeverFollowsALink) {
  const kit::FreshFolder folder;
  std::filesystem::create_directory(folder.Path() / ".reelora");
  std::filesystem::create_symlink("/dev/null", folder.Path() / ".reelora/lock");
  EXPECT_FALSE(FolderLock(folder.Path().string()).Held());
}

TEST(FolderLock, IsNotMadeWhereALinkInPlaceOfTheSafetyFolderLeads) {
  const kit::FreshFolder folder, elsewhere;
  std::filesystem::create_directory_symlink(elsewhere.Path(), folder.Path() / ".reelora");
  EXPECT_TRUE(FolderLock(folder.Path().string()).Held());
  EXPECT_TRUE(std::filesystem::is_empty(elsewhere.Path()));
}

TEST(FolderLock, DoesNotStandInTheWayWhereNoneCanBeMade) { EXPECT_TRUE(FolderLock("/nowhere/at/all").Held()); }

}  // namespace
}  // namespace runtime
