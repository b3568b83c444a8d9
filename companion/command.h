// The command `reelora-collection`: finds the verb, reads the options, prints help, and runs the verb.
#pragma once

#include <string>
#include <vector>

#include "companion/verb.h"

namespace companion {

// Arguments: without the program name. Delivered: the folder of the files that are delivered with the program; "" if it
// is not there. Returns the exit status; reports a Failure of the verb and returns Found.
int RunCommand(const std::vector<std::string>& arguments, Output& output, const DiskIn& make_disk = RealDiskIn,
               const std::string& delivered = "");

}  // namespace companion
