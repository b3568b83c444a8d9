// Runs: one that is made up as it is played, by its seed, and one that is played again.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tests/monkey/play.h"

namespace monkey {

struct Finding {
  std::string What;
  std::size_t Event = 0;  // from 1; 0: the first start; one more than there are events: the last start
};

// The finding without what changes as a run shrinks: up to the first digit or colon.
std::string KindOf(const std::string& what);

// Where a run is; another process may look on.
struct Progress {
  std::uint64_t Seed = 0;
  std::uint64_t Event = 0;
  std::uint64_t Passed = 0;  // runs
};

struct PlayedRun {
  Script Played;
  std::optional<Finding> Found;
};

// The run of a seed. In one of eight, or in all if `faults`, disk calls fail.
PlayedRun PlayRun(std::uint64_t seed, bool faults, const Setting& setting, Figures& figures, Progress& progress);
// Its script up to that event, which is made up but not played.
Script ScriptUpTo(std::uint64_t event, std::uint64_t seed, bool faults, const Setting& setting);

// Plays it again, up to the first finding.
std::optional<Finding> Replay(const Script& script, const Setting& setting);
// The script as a story, with the effects of each event up to the finding. what: for the comment at its head. Unplayed:
// so many events at its end are not played, and their effects not known.
std::string StoryOf(const Script& script, const Setting& setting, const std::string& what, std::size_t unplayed = 0);

}  // namespace monkey
