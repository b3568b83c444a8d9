// An advisory lock on the open file: released with the process, however it ends. The file is for every user who can
// write into the folder, whoever made it; to lock it, reading it is enough.
#include "runtime/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "runtime/disk.h"

namespace runtime {
namespace {

constexpr mode_t ForEveryUser = 0666;
constexpr const char* LockFile = "lock";

// The safety folder itself, never one that a link leads to.
int OpenSafetyFolder(const std::string& folder) {
  const std::string own(SafetyFolder);
  RealDisk(folder).MakeFolder(own);
  return open((folder + "/" + own).c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

int OpenLock(int safety_folder) {
  constexpr int Flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  int made = openat(safety_folder, LockFile, O_RDWR | O_CREAT | O_EXCL | Flags, ForEveryUser);
  if (made >= 0) {
    static_cast<void>(fchmod(made, ForEveryUser));  // whatever the user's mask takes away
    return made;
  }
  int found = openat(safety_folder, LockFile, O_RDWR | Flags);
  return found >= 0 ? found : openat(safety_folder, LockFile, O_RDONLY | Flags);
}

}  // namespace

FolderLock::FolderLock(const std::string& folder) {
  const int safety_folder = OpenSafetyFolder(folder);
  if (safety_folder < 0) return;
  file_ = OpenLock(safety_folder);
  struct stat status {};
  if (file_ < 0) {
    held_ = fstatat(safety_folder, LockFile, &status, AT_SYMLINK_NOFOLLOW) != 0;
  } else {
    held_ = flock(file_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
  }
  close(safety_folder);
}

FolderLock::~FolderLock() {
  if (file_ >= 0) close(file_);
}

}  // namespace runtime
