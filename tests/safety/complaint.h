// What is wrong with a folder that a program has left behind.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/kit/memory_disk.h"

namespace safety {

// The folder without the safety folder.
kit::Folder Visible(const kit::Folder& content);

// Makes what stands between a run of the program and the disk below; no function: nothing does.
using Fitting = std::function<std::unique_ptr<runtime::Disk>(runtime::Disk&)>;
std::unique_ptr<runtime::Disk> Fitted(runtime::Disk& below, const Fitting& fit);

// Starts the program on the disk, which stays as the start leaves it, and tells what is wrong: it does not start, the
// folder is none of those allowed, or a film of the folder before, or of the first one allowed, is neither in its slot
// nor in the history. "" where nothing is.
std::string Complaint(kit::MemoryDisk& disk, const std::vector<kit::Folder>& allowed, const kit::Folder& before,
                      const Fitting& fit = {});
// The same for a folder that was found.
std::string Complaint(const kit::Folder& found, const std::vector<kit::Folder>& allowed, const kit::Folder& before,
                      const Fitting& fit = {});

}  // namespace safety
