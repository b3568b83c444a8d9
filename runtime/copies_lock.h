// Locks a folder into which a copy is written. Nothing is made in it: the lock is on the folder itself.
#pragma once

#include <string>

namespace runtime {

class CopiesLock {
 public:
  explicit CopiesLock(const std::string& folder);
  ~CopiesLock();
  CopiesLock(const CopiesLock&) = delete;
  CopiesLock& operator=(const CopiesLock&) = delete;

  // False if another run has locked the folder. One that cannot be opened, or is on a disk without locks, counts as
  // held; the first write reports the error.
  bool Held() const { return held_; }

 private:
  int folder_ = -1;
  bool held_ = true;
};

}  // namespace runtime
