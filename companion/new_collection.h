// A collection in a folder that has none yet, made as the command reelora makes it.
#pragma once

#include <string>

#include "companion/verb.h"

namespace companion {

// Whether the collection has its master file.
bool HasMasterFile(runtime::Disk& disk);

// Whether a folder without a master file may become a collection: it is empty or has other files of a collection. If
// not, it says so.
bool MayBecomeCollection(const Invocation& invocation, Output& output);

// Puts the delivered files into the folder and makes the master file. If there are none, it says so and returns false.
// The caller holds the lock of the collection.
bool MakeCollection(runtime::Disk& disk, const Invocation& invocation, Output& output);

// The folder's path without dots and links; as given if the system cannot resolve it.
std::string WholeName(const std::string& folder);

}  // namespace companion
