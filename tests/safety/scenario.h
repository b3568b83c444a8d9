// The scenarios in which the program writes: the folder before, the user's steps, and the folders that may be found
// while they run.
#pragma once

#include <string>
#include <vector>

#include "tests/kit/memory_disk.h"
#include "tests/safety/steps.h"

namespace safety {

struct Scenario {
  std::string Name;  // plain words, for messages
  kit::Folder Before;
  std::vector<Step> Steps;
};

// Slot 7 is the first that straddles a page; each scenario that changes a film uses such a slot.
const std::vector<Scenario>& Scenarios();

// For each count of finished steps, the folders that may be found: that after the last step and those during the next.
// The safety folder is left out.
std::vector<std::vector<kit::Folder>> AllowedFolders(const Scenario& scenario);

// The name of a scenario as the name of a test: an underscore for each character that such a name cannot have.
std::string TestNameOf(const Scenario& scenario);

}  // namespace safety
