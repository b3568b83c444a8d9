// Checks a folder that a program has left.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/kit/memory_disk.h"

namespace safety {

// The folder without the safety folder and without what stopped copies have left.
kit::Folder Visible(const kit::Folder& content);

// Wraps the disk; empty: none.
using DiskWrapper = std::function<std::unique_ptr<runtime::Disk>(runtime::Disk&)>;
std::unique_ptr<runtime::Disk> Wrapped(runtime::Disk& below, const DiskWrapper& wrapper);

// Starts the program on the disk, which keeps the repairs, and returns what is wrong: the start fails, the folder is
// not an allowed one, or a film of `before` or of the first allowed folder is neither in its slot nor in the history.
// "" if sound.
std::string Complaint(kit::MemoryDisk& disk, const std::vector<kit::Folder>& allowed, const kit::Folder& before,
                      const DiskWrapper& wrapper = {});
// The same for the content of a folder.
std::string Complaint(const kit::Folder& found, const std::vector<kit::Folder>& allowed, const kit::Folder& before,
                      const DiskWrapper& wrapper = {});

}  // namespace safety
