// Holds a collection's folder for one run of the program.
#pragma once

#include <string>

namespace runtime {

class FolderLock {
 public:
  explicit FolderLock(const std::string& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // False where another run holds the folder. A folder in which no lock can be made counts as held by this run: its
  // first write will name the failure.
  bool Held() const { return held_; }

 private:
  int file_ = -1;
  bool held_ = true;
};

}  // namespace runtime
