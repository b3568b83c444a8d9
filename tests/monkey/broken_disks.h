// Disks that break what the monkey watches over, each in one way.
#pragma once

#include <string>
#include <vector>

#include "tests/safety/soundness.h"

namespace monkey {

struct BrokenDisk {
  std::string Name;
  safety::DiskWrapper Wrapper;
  std::string Finding;  // how it begins
  bool Stops = false;   // what is found ends the program
};

const std::vector<BrokenDisk>& BrokenDisks();

}  // namespace monkey
