// An advisory lock on the open folder: released with the process, however it ends.
#include "runtime/copies_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace runtime {

CopiesLock::CopiesLock(const std::string& folder) : folder_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  held_ = folder_ < 0 || flock(folder_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

CopiesLock::~CopiesLock() {
  if (folder_ >= 0) close(folder_);
}

}  // namespace runtime
