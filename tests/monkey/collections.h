// The collections that runs begin with: small ones, empty ones, damaged ones.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/kit/memory_disk.h"
#include "tests/monkey/dice.h"

namespace monkey {

// What differs from the folder of a story before its set-up.
struct Collection {
  std::vector<std::string> Films;  // records of 649 bytes
  std::string Behind;              // bytes after the last
  // Contents by name, the master file's too if it is neither films nor missing; nothing for a file that is removed.
  std::map<std::string, std::optional<std::string>> Files;
};

Collection RandomCollection(Dice& dice);
// The bytes of its master file, as far as they are no file of their own.
std::string MasterOf(const Collection& collection);
// What a story begins with.
const kit::Folder& BaseFolder();
kit::Folder FolderOf(const Collection& collection);
// As set-up lines of a story, each with its line end.
std::string SetUpLines(const Collection& collection);

// Characters as a user types them: a word of the program's, or bytes from 0x20 to 0xFF.
std::string RandomText(Dice& dice);

}  // namespace monkey
