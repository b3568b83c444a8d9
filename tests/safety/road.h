// The roads on which the program writes: for each the folder before, the steps of the user, and the folders that may be
// found while they are walked.
#pragma once

#include <string>
#include <vector>

#include "tests/kit/memory_disk.h"
#include "tests/safety/steps.h"

namespace safety {

struct Road {
  std::string Name;
  kit::Folder Before;
  std::vector<Step> Steps;
};

// Slot 7 is the first that straddles a page; each road that changes a film goes through such a slot.
const std::vector<Road>& Roads();

// What may be found after so many finished steps: where the step ended, and what the next one passes through. Without
// the safety folder.
std::vector<std::vector<kit::Folder>> Stations(const Road& road);

}  // namespace safety
