// Kills a program at a random moment while it saves without pause in a real folder; it runs in a process of its own.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "tests/safety/repeated_actions.h"
#include "tests/safety/soundness.h"

namespace safety {

// Whether the record of the slot lies on two pages of a file.
bool Straddles(int slot);

struct KillCount {
  int Trials = 0;
  int Straddling = 0;
  int Finished = 0;  // saves reported finished before the kill
  std::vector<std::string> Complaints;
};

// Each trial has a fresh folder, every second one a slot that straddles. The seed decides moments and slots.
// until_complaint: stop at the first complaint.
KillCount KillAtRandom(const RepeatedAction& action, int trials, unsigned seed, const DiskWrapper& wrapper = {},
                       bool until_complaint = false);

}  // namespace safety
