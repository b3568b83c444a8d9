// What the monkey does: one event of a user or of the world around the program.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/program.h"
#include "tests/kit/faulty_disk.h"
#include "tests/monkey/collections.h"
#include "tests/monkey/dice.h"

namespace monkey {

enum class Act {
  Click,
  DblClick,
  Move,
  Pick,
  Key,
  Type,
  Clear,
  Close,
  Clock,
  Restart,          // a kill between two events, and a start with the record screen
  RestartAtOpener,  // the same with the opening window, which asks about drafts
  EndSession,       // and a start with the record screen
  Fault,            // a disk call to come will fail
};

// Name: of a control, a list, a window, or a key. Text: an item or characters. Number: of a clock, seconds since 1970;
// of the end of a session, 1 if it saves. Answers: the seed of what the desk answers.
struct Event {
  Act What = Act::Clear;
  std::string Name = {};
  std::string Text = {};
  std::int64_t Number = 0;
  kit::FaultPlan Fault = {kit::Fault::Full, 0};
  std::uint64_t Answers = 0;
};

// A run that can be played again: what it starts with, and its events.
struct Script {
  Collection Films;
  bool AtOpener = false;
  std::int64_t Clock = 0;
  std::uint64_t Answers = 0;  // of the start
  std::vector<Event> Events;
};

// What a run may meet.
struct Habits {
  bool Faults = false;
  bool Kills = true;    // among the faults
  bool AnyByte = true;  // false: only characters that a keyboard has
};

// On a program that is running.
Event RandomEvent(const Program& program, const Habits& habits, Dice& dice);
Event RandomStart(Dice& dice);
std::int64_t RandomClock(Dice& dice);

// As a line of a story; a comment for what stories have no word for.
std::string Notation(const Event& event);
std::string ClockText(std::int64_t clock);

}  // namespace monkey
