// Work in a process of its own, so that a crash or a hang of the program ends that process only.
#pragma once

#include <functional>
#include <string>

#include "tests/monkey/run.h"

namespace monkey {

// How a child ended: with its status, or by a signal.
struct ChildEnd {
  bool Exited = false;
  int Number = 0;

  std::string Text() const;
};

// Runs the work in a child, whose status it returns. progress: shared with the child. Quiet: its output is thrown away.
ChildEnd InChild(const std::function<int(Progress&)>& work, Progress& progress, bool quiet);
// The process is ended if it takes more than that many seconds from here; 0: no longer.
void LimitSeconds(unsigned seconds);

}  // namespace monkey
