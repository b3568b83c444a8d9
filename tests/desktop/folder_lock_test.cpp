// Two runs on one folder.
#include "desktop/folder_lock.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace desktop {
namespace {

TEST(FolderLock, HoldsTheFolderAgainstASecondRunUntilItGoes) {
  QTemporaryDir folder;
  {
    FolderLock first(folder.path().toStdString());
    EXPECT_TRUE(first.Held());
    EXPECT_FALSE(FolderLock(folder.path().toStdString()).Held());
  }
  EXPECT_TRUE(FolderLock(folder.path().toStdString()).Held());
}

TEST(FolderLock, LiesInTheFoldersOwnSubfolder) {
  QTemporaryDir folder;
  FolderLock lock(folder.path().toStdString());
  EXPECT_TRUE(QFile::exists(folder.filePath(".reelora/lock")));
}

TEST(FolderLock, DoesNotStandInTheWayWhereNoneCanBeMade) { EXPECT_TRUE(FolderLock("/nowhere/at/all").Held()); }

}  // namespace
}  // namespace desktop
