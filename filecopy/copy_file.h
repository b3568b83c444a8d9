// A file copied from one disk to another, whole or not at all.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "runtime/disk.h"

namespace filecopy {

// The target is written aside on its own disk and takes its place when it is complete: a failure, or a stop at any
// moment, leaves what stood there before. Throws the Failure that names what went wrong.
void CopyFile(runtime::Disk& source_disk, const std::string& source_name, runtime::Disk& target_disk,
              const std::string& target_name);

// Modified: local time. Size: in bytes.
struct FileFacts {
  std::chrono::local_seconds Modified;
  std::int64_t Size = 0;
};
// Throws Failure "File not found" where there is none.
FileFacts FactsOf(runtime::Disk& disk, const std::string& name);

}  // namespace filecopy
