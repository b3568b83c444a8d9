// What a stop or a failure leaves of a copy that was being written, and its removal.
#pragma once

#include <string>

#include "companion/verb.h"

namespace companion {

// Removes the copy of that name from the folder of the copies if it is an unfinished or empty folder. One that holds
// any file that is not of a copy stays as it is, and so does one that a link leads to.
void RemoveUnfinished(const DiskIn& make_disk, const std::string& folder, const std::string& name);
// Removes every such copy, and zips that have not got their names. Failures are ignored: none of these does any harm.
void RemoveAllUnfinished(const DiskIn& make_disk, const std::string& folder);

}  // namespace companion
