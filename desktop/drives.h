// Drive letters of this machine: removable disks are a: and b:, the disk of the collection is c:.
#pragma once

#include <QString>
#include <optional>
#include <string>

namespace desktop {

// Contains "a" even if no removable disk is mounted.
std::string DriveLetters();
// Mount point of the disk in a drive; nothing if it has none. Folder: the collection's.
std::optional<std::string> DriveFolder(char letter, const std::string& folder);
// The label of the disk that is mounted on a folder; the folder's own name if the disk has no label.
QString DiskName(const std::string& folder);

}  // namespace desktop
