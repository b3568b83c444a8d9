// A subfolder of another disk, as a disk of its own: the drive that a copy goes to.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/kit/passing_disk.h"

namespace kit {

class SubfolderDisk final : public PassingDisk {
 public:
  SubfolderDisk(runtime::Disk& below, std::string folder) : PassingDisk(below), folder_(std::move(folder)) {}

  int Open(const std::string& name, Mode mode) override { return PassingDisk::Open(Below(name), mode); }
  int Rename(const std::string& from, const std::string& to) override {
    return PassingDisk::Rename(Below(from), Below(to));
  }
  int Remove(const std::string& name) override { return PassingDisk::Remove(Below(name)); }
  int MakeFolder(const std::string& name) override { return PassingDisk::MakeFolder(Below(name)); }
  int RemoveFolder(const std::string& name) override { return PassingDisk::RemoveFolder(Below(name)); }
  int SyncFolder(const std::string& name) override { return PassingDisk::SyncFolder(Below(name)); }
  std::vector<std::string> List(const std::string& folder) override { return PassingDisk::List(Below(folder)); }

 private:
  std::string Below(const std::string& name) const { return name.empty() ? folder_ : folder_ + "/" + name; }

  const std::string folder_;
};

}  // namespace kit
