// Why something could not be written or read, in plain words, with what to do.
#pragma once

#include <string>

#include "runtime/failure.h"

namespace launcher {

// One or more sentences; in UTF-8.
std::string ReasonOf(const runtime::Failure& failure);
// The same for an error number of the operating system.
std::string ReasonOf(int system_error);

}  // namespace launcher
