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

int OpenLock(const std::string& path) {
  constexpr int Flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  int made = open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | Flags, ForEveryUser);
  if (made >= 0) {
    static_cast<void>(fchmod(made, ForEveryUser));  // whatever the user's mask takes away
    return made;
  }
  int found = open(path.c_str(), O_RDWR | Flags);
  return found >= 0 ? found : open(path.c_str(), O_RDONLY | Flags);
}

}  // namespace

FolderLock::FolderLock(const std::string& folder) {
  const std::string own(SafetyFolder);
  RealDisk(folder).MakeFolder(own);
  const std::string path = folder + "/" + own + "/lock";
  file_ = OpenLock(path);
  struct stat status {};
  if (file_ < 0) {
    held_ = lstat(path.c_str(), &status) != 0;
  } else {
    held_ = flock(file_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
  }
}

FolderLock::~FolderLock() {
  if (file_ >= 0) close(file_);
}

}  // namespace runtime
