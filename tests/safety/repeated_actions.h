// Actions that a user repeats until the program is killed.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/kit/memory_disk.h"
#include "tests/safety/steps.h"

namespace safety {

// The slots used. With a single film New would overwrite it.
inline constexpr int FirstSlotTried = 3;
inline constexpr int LastSlotTried = 26;

// An action, and what may be found after a kill.
struct RepeatedAction {
  std::string Name;
  std::function<kit::Folder(int slot)> Before;
  // time: n-th repetition, from 1.
  std::function<Step(int slot, int time)> Do;
  // The changed files in every state that may be found after `finished` acknowledged repetitions.
  std::function<std::vector<kit::Folder>(int slot, int finished)> Allowed;
};

const std::vector<RepeatedAction>& RepeatedActions();

}  // namespace safety
