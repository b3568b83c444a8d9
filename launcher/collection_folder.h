// What a folder has in it: a collection, other files, or nothing.
#pragma once

#include <string>

namespace launcher {

// A folder with the master file, the safety folder or the weights of the sort; the films may still be missing.
bool IsCollection(const std::string& folder);
// Also false if the folder cannot be read.
bool IsEmpty(const std::string& folder);

}  // namespace launcher
