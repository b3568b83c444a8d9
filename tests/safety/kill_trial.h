// A program in a process of its own that saves without a pause in a real folder, and is killed at a random moment.
#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/safety/road.h"

namespace safety {

// What the user does over and over, and what of it may be found afterwards.
struct Habit {
  std::string Name;
  std::function<Folder(int slot)> Before;
  // Time by time, from 1.
  std::function<Step(int slot, int time)> Do;
  // The files that this changes, in every state that may be found when so many times are known to be finished.
  std::function<std::vector<Folder>(int slot, int finished)> Allowed;
};

const std::vector<Habit>& Habits();

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
