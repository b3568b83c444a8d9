// Locks a collection's folder for one run of the program.
#pragma once

#include <string>

namespace runtime {

class FolderLock {
 public:
  explicit FolderLock(const std::string& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // False if another run has locked the folder, or if there is a lock file that this user cannot open. If none can be
  // created, the folder counts as held; the first write reports the error.
  bool Held() const { return held_; }

 private:
  int file_ = -1;
  bool held_ = true;
};

}  // namespace runtime
