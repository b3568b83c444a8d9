// The drives of this machine under their letters: removable disks are a: and b:, the disk of the collection is c:.
#pragma once

#include <optional>
#include <string>

namespace desktop {

// "a" is there whether it holds a disk or not.
std::string DriveLetters();
// Where the disk in a drive is mounted; nothing where there is none. Folder: that of the collection.
std::optional<std::string> DriveFolder(char letter, const std::string& folder);

}  // namespace desktop
