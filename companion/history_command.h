// The companion command `reelora-history`: lists overwritten films and restores one.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "runtime/disk.h"

namespace companion {

// Makes the disk of a collection's folder; tests have others.
using DiskIn = std::function<std::unique_ptr<runtime::Disk>(const std::string& folder)>;
std::unique_ptr<runtime::Disk> RealDiskIn(const std::string& folder);

// A longer history is refused; no collector overwrites so many films, and listing it could take hours.
inline constexpr std::int64_t LongestHistory = 1'000'000;

// Arguments: without the program name. Both streams are UTF-8. Returns the exit status: 0 done, 1 failed, 2 usage
// error.
int RunHistoryCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& errors,
                      const DiskIn& disk_in = RealDiskIn);

}  // namespace companion
