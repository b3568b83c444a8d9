// A disk on which no draft can be written. A draft is never synced, so each of its changes would double the states that
// a power failure can leave.
#pragma once

#include <cerrno>
#include <memory>
#include <utility>

#include "tests/kit/passing_disk.h"

namespace kit {

class NoDraftsDisk final : public PassingDisk {
 public:
  explicit NoDraftsDisk(runtime::Disk& below) : PassingDisk(below) {}
  explicit NoDraftsDisk(std::unique_ptr<runtime::Disk> below) : PassingDisk(*below), owned_(std::move(below)) {}

  int Open(const std::string& name, Mode mode) override {
    if (!name.starts_with(".reelora/draft")) return PassingDisk::Open(name, mode);
    return mode == Mode::Read ? -ENOENT : -EACCES;
  }

 private:
  std::unique_ptr<runtime::Disk> owned_;
};

}  // namespace kit
