// How often each handler of each window has run by an event of its control.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "app/program.h"

namespace monkey {

class HandlerCounts {
 public:
  // Puts a counter before each handler. The counts go on from program to program, which must not outlive them.
  void Watch(Program& program);

  std::size_t All() const { return counts_.size(); }
  // "frmPage1.cmdSave.Click".
  std::vector<std::string> NeverRun() const;

 private:
  void Wrap(forms::Handler& handler, const std::string& name);

  std::vector<std::string> names_;
  std::deque<std::uint64_t> counts_;  // its elements stay where they are
  std::size_t next_ = 0;
};

}  // namespace monkey
