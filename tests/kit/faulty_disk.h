// A disk in memory whose chosen call fails, once or from then on.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tests/kit/memory_disk.h"

namespace kit {

// Simulates a kill: thrown by the call, and by every call after it.
struct Killed {};

enum class Fault {
  Full,           // ENOSPC
  Error,          // EIO
  Refused,        // EACCES
  Interrupted,    // EINTR
  Short,          // a write or read does half; other calls are unaffected
  ShortThenFull,  // a write does half; the next one, or every later one, finds the disk full
  Kill,
  KillHalfway,  // cuts a write at a boundary of pages or sectors, or in half if it crosses none; other calls complete
};

std::string_view NameOf(Fault fault);

struct FaultPlan {
  Fault As;
  std::size_t At;  // which call, from 0
  bool FromThenOn = false;
};

// Close cannot fail; List fails as empty and is never interrupted.
class FaultyDisk final : public runtime::Disk {
 public:
  explicit FaultyDisk(MemoryDisk& below) : below_(below) {}
  FaultyDisk(MemoryDisk& below, FaultPlan plan) : below_(below), plan_(plan), planned_(true) {}

  // From now on; the plan's call is counted from here.
  void Arm(FaultPlan plan);
  // Calls made so far.
  std::size_t Calls() const { return calls_; }

  int Open(const std::string& name, Mode mode) override;
  void Close(int handle) override { below_.Close(handle); }
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override;
  std::int64_t Length(int handle) override;
  int Truncate(int handle, std::int64_t length) override;
  int Sync(int handle) override;
  int Identify(int handle, runtime::FileIdentity& identity) override;
  int Lock(int handle) override;
  int Modified(int handle, runtime::FileTime& time) override;
  int SetModified(int handle, runtime::FileTime time) override;
  int Rename(const std::string& from, const std::string& to) override;
  int Remove(const std::string& name) override;
  int MakeFolder(const std::string& name) override;
  int RemoveFolder(const std::string& name) override;
  int SyncFolder(const std::string& name) override;
  std::vector<std::string> List(const std::string& folder) override;

 private:
  // Counts the call; returns whether it fails.
  bool IsDue();
  // The error of a call that fails as a whole, 0 if it may run; throws for a kill.
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
