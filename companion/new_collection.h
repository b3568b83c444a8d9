// A collection in a folder that has none yet, made as the command reelora makes it.
#pragma once

#include <string>

#include "companion/verb.h"

namespace companion {

// Whether the collection has its master file.
bool HasMasterFile(runtime::Disk& disk);

// Whether a folder without a master file may become a collection: it is empty or has other files of a collection. If
// not, that is told.
bool MayBecomeCollection(const Invocation& invocation, Output& output);

// Puts the delivered files into the folder and makes the master file. False if there are none, which is told. The lock
// of the collection is the caller's.
bool MakeCollection(runtime::Disk& disk, const Invocation& invocation, Output& output);

// The folder's name without dots and links, as far as it can be told.
std::string WholeName(const std::string& folder);

}  // namespace companion
