// An advisory lock on the open file: released with the process, however it ends.
#include "runtime/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace runtime {

FolderLock::FolderLock(const std::string& folder) {
  std::string own = folder + "/.reelora";
  mkdir(own.c_str(), 0777);
  file_ = open((own + "/lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (file_ >= 0) held_ = flock(file_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

FolderLock::~FolderLock() {
  if (file_ >= 0) close(file_);
}

}  // namespace runtime
