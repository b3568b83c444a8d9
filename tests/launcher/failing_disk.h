// Real disks of which one call fails, counted over all of them: what a start does from the first to the last.
#pragma once

#include <cerrno>
#include <memory>
#include <utility>

#include "tests/kit/faulty_disk.h"
#include "tests/kit/passing_disk.h"

namespace launcher {

// Kill: the call does nothing, and nothing after it.
enum class Failing { Full, Error, Refused, Kill };

struct FailurePlan {
  Failing As = Failing::Full;
  int At = -1;  // which call, from 0; -1: none
  bool FromThenOn = false;
  int Calls = 0;  // made so far
};

class FailingDisk final : public kit::PassingDisk {
 public:
  FailingDisk(std::unique_ptr<runtime::Disk> below, FailurePlan& plan)
      : PassingDisk(*below), owned_(std::move(below)), plan_(plan) {}

  int Open(const std::string& name, Mode mode) override {
    // A full disk opens what it has.
    int error = mode == Mode::Read || mode == Mode::ReadWrite ? ErrorUnlessFull() : Error();
    return error != 0 ? error : PassingDisk::Open(name, mode);
  }
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    int error = ErrorUnlessFull();
    return error != 0 ? error : PassingDisk::ReadAt(handle, target, count, offset);
  }
  // A full disk takes half of it first.
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    int error = Error();
    if (error == -ENOSPC && count > 1) PassingDisk::WriteAt(handle, source, count / 2, offset);
    return error != 0 ? error : PassingDisk::WriteAt(handle, source, count, offset);
  }
  int Sync(int handle) override {
    int error = Error();
    return error != 0 ? error : PassingDisk::Sync(handle);
  }
  int Rename(const std::string& from, const std::string& to) override {
    int error = Error();
    return error != 0 ? error : PassingDisk::Rename(from, to);
  }
  int Remove(const std::string& name) override {
    int error = ErrorUnlessFull();
    return error != 0 ? error : PassingDisk::Remove(name);
  }
  int MakeFolder(const std::string& name) override {
    int error = Error();
    return error != 0 ? error : PassingDisk::MakeFolder(name);
  }
  int SyncFolder(const std::string& name) override {
    int error = Error();
    return error != 0 ? error : PassingDisk::SyncFolder(name);
  }

 private:
  int Error() {
    int call = plan_.Calls++;
    bool due =
        plan_.At >= 0 && (call == plan_.At || (call > plan_.At && (plan_.FromThenOn || plan_.As == Failing::Kill)));
    if (!due) return 0;
    if (plan_.As == Failing::Kill) throw kit::Killed{};
    return plan_.As == Failing::Full ? -ENOSPC : plan_.As == Failing::Error ? -EIO : -EACCES;
  }
  int ErrorUnlessFull() {
    int error = Error();
    return error == -ENOSPC ? 0 : error;
  }

  std::unique_ptr<runtime::Disk> owned_;
  FailurePlan& plan_;
};

}  // namespace launcher
