// The disk as the program sees it: small, and with an end to the patience for one event.
#pragma once

#include <cerrno>

#include "tests/kit/passing_disk.h"

namespace monkey {

// Thrown by a disk call of an event that has made far too many: its handler does not end by itself.
struct Endless {};

class WatchedDisk final : public kit::PassingDisk {
 public:
  using kit::PassingDisk::PassingDisk;

  // A wrong key may name a slot far away; what is beyond finds the disk full.
  static constexpr std::int64_t Room = 64 * 1024;
  // A report that walks past a blank last key goes on until its 16-bit position overflows, at some calls a step.
  static constexpr int MostCalls = 400000;

  void BeginEvent() { calls_ = 0; }
  // Whether the disk was full once.
  bool WasFull() const { return was_full_; }

  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    Count();
    return PassingDisk::ReadAt(handle, target, count, offset);
  }
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    Count();
    if (offset + static_cast<std::int64_t>(count) <= Room) return PassingDisk::WriteAt(handle, source, count, offset);
    was_full_ = true;
    return -ENOSPC;
  }
  std::int64_t Length(int handle) override {
    Count();
    return PassingDisk::Length(handle);
  }

 private:
  void Count() {
    if (++calls_ > MostCalls) throw Endless();
  }

  int calls_ = 0;
  bool was_full_ = false;
};

}  // namespace monkey
