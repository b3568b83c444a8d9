// What a stop leaves besides records and whole files: drafts, copies and temporary files.
#pragma once

#include <string>

#include "tests/safety/soundness.h"

namespace safety {

// Each returns what is wrong, "" if nothing.

// A kill at any call while a film is typed costs no typing older than the last event.
std::string StoppedTypingComplaint(const DiskWrapper& wrapper = {});
// The next start removes temporary files, and the next copy what a stopped one has left on the drive.
std::string RemainsComplaint(const DiskWrapper& wrapper = {});

}  // namespace safety
