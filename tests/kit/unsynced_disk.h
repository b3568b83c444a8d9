// A disk whose syncs do nothing: benches measure them apart, and a kill loses nothing that the system has cached.
#pragma once

#include "tests/kit/passing_disk.h"

namespace kit {

class UnsyncedDisk final : public PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int Sync(int) override { return 0; }
  int SyncFolder(const std::string&) override { return 0; }
};

}  // namespace kit
