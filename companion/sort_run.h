// The program's sort run, without its window.
#pragma once

#include <vector>

#include "companion/verb.h"
#include "runtime/files.h"
#include "sort/operation.h"
#include "store/key_file.h"

namespace companion {

struct SortedFile {
  const store::KeyFile* Keys = nullptr;
  sort::Result Result;
};

// Makes the four key files and the four count files, byte for byte as the program does. A pass that fails leaves both
// of its files as they were, and the next one runs; the program would write a count. File numbers 1 to 3 must be free;
// the caller holds the lock of the collection.
std::vector<SortedFile> SortCollection(runtime::Files& files, Output& output);

// Prints a line for each; returns Found if one failed.
int PrintSorted(const std::vector<SortedFile>& sorted, Output& output);

}  // namespace companion
