// Runs a command in process on a folder, or on the disk of a test.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "companion/command.h"
#include "tests/kit/source_tree.h"

namespace companion {

struct Ran {
  int Status = 0;
  std::string Text, Errors;
};

inline Ran RunIn(const std::string& folder, std::vector<std::string> arguments, const DiskIn& disk = RealDiskIn) {
  arguments.insert(arguments.begin(), {"-C", folder});
  std::ostringstream text, errors;
  std::istringstream none;
  Output output{text, errors, none};
  const int status = RunCommand(arguments, output, disk, kit::DeliveredFolder());
  return {status, text.str(), errors.str()};
}

}  // namespace companion
