// A program in a process of its own that saves without a pause in a real folder, and is killed at a random moment.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "tests/safety/complaint.h"
#include "tests/safety/habits.h"

namespace safety {

// Whether the record of the slot lies on two pages of a file.
bool Straddles(int slot);

struct KillCount {
  int Trials = 0;
  int Straddling = 0;
  int Finished = 0;  // saves that the killed programs had acknowledged
  std::vector<std::string> Complaints;
};

// Each trial has a fresh folder, every second one a slot that straddles. The seed makes the moments and the slots. It
// ends before its count where until_complaint is set and there is one.
KillCount KillAtRandom(const Habit& habit, int trials, unsigned seed, const Fitting& fit = {},
                       bool until_complaint = false);

}  // namespace safety
