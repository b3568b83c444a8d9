// A file copied from one disk to another, whole or not at all.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "runtime/disk.h"

namespace runtime {

// Both: the whole new file is in place. Unconfirmed: the last sync failed, so a power failure may bring back what was
// there before.
enum class Copied { Confirmed, Unconfirmed };

// Writes a temporary file on the target's disk, with the date and time of the source, and renames it once it is
// complete. A stop at any moment, or a Failure, which names what went wrong, leaves what was there before; only where
// the disk has no room for both files but has for the new one in place of the old, the old one is removed first. What
// earlier copies left on the target's disk when they were stopped is removed, but nothing that another program is
// writing there.
Copied CopyFile(Disk& source_disk, const std::string& source_name, Disk& target_disk, const std::string& target_name);

// Modified: local time. Size: in bytes.
struct FileFacts {
  std::chrono::local_seconds Modified;
  std::int64_t Size = 0;
};
// Throws Failure "File not found" if there is none.
FileFacts FactsOf(Disk& disk, const std::string& name);

}  // namespace runtime
