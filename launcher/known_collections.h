// The settings file of `reelora`: which collections were open, and where second copies go.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "runtime/disk.h"

namespace launcher {

inline constexpr std::string_view SettingsFile = "reelora.conf";

struct KnownCollections {
  std::vector<std::string> Folders;  // absolute paths, the last one opened first, at most MostFolders
  std::string CopiesFolder;          // as the user wrote it, "" for none
  std::vector<std::string> Others;   // lines of the user that mean nothing here

  bool operator==(const KnownCollections&) const = default;
};

inline constexpr std::size_t MostFolders = 10;

// A missing file is an empty one. Throws the Failure of a file that cannot be read.
KnownCollections ReadKnown(runtime::Disk& settings);
// Writes a temporary file and renames it. Throws the Failure that names what went wrong; the old file then stays.
void WriteKnown(runtime::Disk& settings, const KnownCollections& known);

// Puts the folder first.
void Remember(KnownCollections& known, const std::string& folder);

}  // namespace launcher
