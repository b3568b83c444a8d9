// Each error number of the system has a name, which users see.
#include "runtime/failure.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace runtime {
namespace {

TEST(SystemErrors, OfAFullDiskAMissingFileAndMemoryHaveTheirNames) {
  EXPECT_EQ(NameOfSystemError(ENOENT), "File not found");
  for (int error : {ENOSPC, EDQUOT}) EXPECT_EQ(NameOfSystemError(error), "Disk full") << error;
  EXPECT_EQ(NameOfSystemError(ENOMEM), "Out of memory");
}

TEST(SystemErrors, OfWhatIsNoFileForUsAreAccessErrors) {
  for (int error : {EACCES, EPERM, EROFS, EISDIR, ENOTDIR, ELOOP, ENAMETOOLONG, ETXTBSY, EEXIST, ENXIO, ENODEV})
    EXPECT_EQ(NameOfSystemError(error), "Path/File access error") << error;
}

TEST(SystemErrors, OfAllOtherKindsAreTheDevices) {
  for (int error : {0, EIO, EBADF, EINVAL, ENOTSUP, 9999})
    EXPECT_EQ(NameOfSystemError(error), "Device I/O error") << error;
}

}  // namespace
}  // namespace runtime
