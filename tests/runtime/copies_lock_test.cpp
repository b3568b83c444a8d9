// Two runs that copy into one folder.
#include "runtime/copies_lock.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/kit/fresh_folder.h"

namespace runtime {
namespace {

TEST(CopiesLock, HoldsTheFolderAgainstASecondRunUntilItGoes) {
  const kit::FreshFolder folder, other;
  {
    const CopiesLock first(folder.Path());
    EXPECT_TRUE(first.Held());
    EXPECT_FALSE(CopiesLock(folder.Path()).Held());
    EXPECT_TRUE(CopiesLock(other.Path()).Held());
  }
  EXPECT_TRUE(CopiesLock(folder.Path()).Held());
}

TEST(CopiesLock, LeavesNothingInTheFolder) {
  const kit::FreshFolder folder;
  const CopiesLock lock(folder.Path());
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(CopiesLock, DoesNotStandInTheWayWhereThereIsNoFolder) {
  EXPECT_TRUE(CopiesLock("/nowhere/at/all").Held());
  EXPECT_TRUE(CopiesLock("/dev/null").Held());
}

}  // namespace
}  // namespace runtime
