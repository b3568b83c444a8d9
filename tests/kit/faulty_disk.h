// A disk in memory of which a chosen call goes wrong, once or from then on.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tests/kit/memory_disk.h"

namespace kit {

// What a disk throws at which the program was killed; no call is answered after it.
struct Killed {};

enum class Fault {
  Full,           // ENOSPC
  Error,          // EIO
  Refused,        // EACCES
  Interrupted,    // EINTR
  Short,          // a write or read does half of it; other calls are not touched
  ShortThenFull,  // a write does half of it, and the next one, or each later one, finds the disk full
  Kill,
  KillHalfway,  // a write is cut at the border of a page, or at its half where it has none; other calls end whole
};

struct FaultPlan {
  Fault As;
  std::size_t At;  // which call, from 0
  bool FromThenOn = false;
};

// Close is no call that can fail. List has no way to tell, and is empty.
class FaultyDisk final : public runtime::Disk {
 public:
  explicit FaultyDisk(MemoryDisk& below) : below_(below) {}
  FaultyDisk(MemoryDisk& below, FaultPlan plan) : below_(below), plan_(plan), planned_(true) {}

  // Calls made so far.
  std::size_t Calls() const { return calls_; }

  int Open(const std::string& name, Mode mode) override;
  void Close(int handle) override { below_.Close(handle); }
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override;
  std::int64_t Length(int handle) override;
  int Truncate(int handle, std::int64_t length) override;
  int Sync(int handle) override;
  int Rename(const std::string& from, const std::string& to) override;
  int Remove(const std::string& name) override;
  int MakeFolder(const std::string& name) override;
  int SyncFolder(const std::string& name) override;
  std::vector<std::string> List(const std::string& folder) override;

 private:
  // Counts the call; tells whether it is one that goes wrong.
  bool IsDue();
  // The error number of a call that goes wrong as a whole, 0 for one that may go on; throws where it is a kill.
  int ErrorOfCall();
  template <typename Call>
  auto Made(Call call) -> decltype(call());

  MemoryDisk& below_;
  FaultPlan plan_{Fault::Full, 0};
  bool planned_ = false;
  bool killed_ = false;
  bool full_ = false;
  std::size_t calls_ = 0;
};

}  // namespace kit
