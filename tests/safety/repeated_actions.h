// Actions that a user repeats until the program is killed.
#pragma once

#include <chrono>
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
  std::chrono::microseconds Longest;  // until the kill: about three repetitions
  std::function<kit::Folder(int slot)> Before;
  void (*Prepare)(Program&, int slot);  // before the first repetition; nullptr: nothing
  // time: n-th repetition, from 1.
  std::function<Step(int slot, int time)> Do;
  // The changed files after n repetitions. After a kill each of them is as after the acknowledged ones or as after one
  // more, or as in between.
  std::function<kit::Folder(int slot, int times)> After;
  std::function<kit::Folder(int slot, int times)> Between = {};
  // The restart puts back what was being typed.
  StartedProgram::At RestartsAt = StartedProgram::At::RecordScreen;
  // What is wrong after a step that the user takes next, "" if nothing.
  std::function<std::string(Program&)> Next = {};
};

const std::vector<RepeatedAction>& RepeatedActions();

}  // namespace safety
