// What other programs do to the folder: a master file replaced while it is open, a backup restored, planted files. And
// the sort run, whose files share their folder syncs.
#pragma once

#include <string>

#include "tests/safety/soundness.h"

namespace safety {

// Each returns what is wrong, "" if nothing.

// A master file that another program has replaced or removed stops the save, and nothing is acknowledged.
std::string ReplacedMasterComplaint(const DiskWrapper& wrapper = {});
// A backup that differs from the last two images by whole sectors stays as it is.
std::string RestoredBackupComplaint(const DiskWrapper& wrapper = {});
// A file planted under the name of a temporary one keeps its content.
std::string PlantedFileComplaint(const DiskWrapper& wrapper = {});
// No loss of power takes back a sort run that has ended.
std::string EndedSortComplaint(const DiskWrapper& wrapper = {});

}  // namespace safety
