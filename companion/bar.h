// A bar for long work, drawn on a terminal only and removed at the end.
#pragma once

#include <string>

#include "companion/verb.h"

namespace companion {

class Bar {
 public:
  // Label: what the work is.
  Bar(Output& output, std::string label) : output_(output), label_(std::move(label)) {}
  ~Bar();
  Bar(const Bar&) = delete;
  Bar& operator=(const Bar&) = delete;

  // Part: what is done, from 0 to 1.
  void Show(double part);

 private:
  Output& output_;
  const std::string label_;
  int shown_ = -1;  // percent
};

}  // namespace companion
