// Two runs in one folder.
#include "runtime/folder_lock.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/kit/fresh_folder.h"

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

TEST(FolderLock, DoesNotStandInTheWayWhereNoneCanBeMade) { EXPECT_TRUE(FolderLock("/nowhere/at/all").Held()); }

}  // namespace
}  // namespace runtime
