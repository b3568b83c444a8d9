// One run of a scenario on a disk, up to its end, a failure or a kill.
#pragma once

#include <optional>
#include <string>

#include "runtime/failure.h"
#include "tests/kit/faulty_disk.h"
#include "tests/safety/scenario.h"

namespace safety {

struct ScenarioRun {
  bool Started = false;   // the record screen came up
  std::size_t Steps = 0;  // finished, each without a failure
  std::optional<runtime::Failure> Stopped;
  std::string Reported;  // by the failure report
  std::string Refused;   // what the user was told of a step that could not be done; the steps after it are left out
  bool Killed = false;
};

// finished: called with the count of finished steps after each.
ScenarioRun RunScenario(const Scenario& scenario, runtime::Disk& disk,
                        const std::function<void(std::size_t)>& finished = {});

// The count of disk calls that the scenario makes.
std::size_t CallsOf(const Scenario& scenario);

}  // namespace safety
