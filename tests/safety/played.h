// A road walked once on a disk, up to its end, a failure or a kill.
#pragma once

#include <optional>
#include <string>

#include "runtime/failure.h"
#include "tests/kit/faulty_disk.h"
#include "tests/safety/road.h"

namespace safety {

struct Played {
  bool Started = false;   // the record screen came up
  std::size_t Steps = 0;  // finished, each without a failure
  std::optional<runtime::Failure> Stopped;
  std::string Reported;  // by the failure report
  bool Killed = false;
};

// finished: told after each step that has come to its end.
Played Play(const Road& road, runtime::Disk& disk, const std::function<void(std::size_t)>& finished = {});

// How many calls of the disk the road makes.
std::size_t CallsOf(const Road& road);

}  // namespace safety
