// What a user does over and over while the program is killed.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/kit/memory_disk.h"
#include "tests/safety/steps.h"

namespace safety {

// The slots that are tried; on a single film New would overwrite it.
inline constexpr int FirstSlotTried = 3;
inline constexpr int LastSlotTried = 26;

// What the user does over and over, and what of it may be found afterwards.
struct Habit {
  std::string Name;
  std::function<kit::Folder(int slot)> Before;
  // Time by time, from 1.
  std::function<Step(int slot, int time)> Do;
  // The files that this changes, in every state that may be found when so many times are known to be finished.
  std::function<std::vector<kit::Folder>(int slot, int finished)> Allowed;
};

const std::vector<Habit>& Habits();

}  // namespace safety
