// The real disk without its syncs, whose cost is the device's and is measured apart.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "runtime/disk.h"

namespace bench {

class UnsyncedDisk final : public runtime::Disk {
 public:
  explicit UnsyncedDisk(std::string folder) : disk_(std::move(folder)) {}

  int Open(const std::string& name, Mode mode) override { return disk_.Open(name, mode); }
  void Close(int handle) override { disk_.Close(handle); }
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    return disk_.ReadAt(handle, target, count, offset);
  }
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    return disk_.WriteAt(handle, source, count, offset);
  }
  std::int64_t Length(int handle) override { return disk_.Length(handle); }
  int Truncate(int handle, std::int64_t length) override { return disk_.Truncate(handle, length); }
  int Sync(int) override { return 0; }
  int Rename(const std::string& from, const std::string& to) override { return disk_.Rename(from, to); }
  int Remove(const std::string& name) override { return disk_.Remove(name); }
  int MakeFolder(const std::string& name) override { return disk_.MakeFolder(name); }
  int SyncFolder(const std::string&) override { return 0; }
  std::vector<std::string> List(const std::string& folder) override { return disk_.List(folder); }

 private:
  runtime::RealDisk disk_;
};

}  // namespace bench
