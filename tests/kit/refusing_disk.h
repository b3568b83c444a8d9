// A disk that refuses to open one file, or to read any.
#pragma once

#include <algorithm>
#include <cerrno>
#include <utility>

#include "tests/kit/passing_disk.h"

namespace kit {

class RefusingDisk final : public PassingDisk {
 public:
  // unopenable: a name, "" for none.
  explicit RefusingDisk(runtime::Disk& below, std::string unopenable = "")
      : PassingDisk(below), Unopenable(std::move(unopenable)) {}

  int Open(const std::string& name, Mode mode) override {
    return name == Unopenable ? -EACCES : PassingDisk::Open(name, mode);
  }
  // A read that fails overwrites the buffer, as the system may.
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    if (!NoRead) return PassingDisk::ReadAt(handle, target, count, offset);
    std::fill_n(target, count, '!');
    return -EIO;
  }

  std::string Unopenable;
  bool NoRead = false;
};

}  // namespace kit
