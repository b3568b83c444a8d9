// Questions that are answered with a letter: y, n, a for yes to all that follow, q for no to all.
#pragma once

#include <string>
#include <string_view>

#include "companion/verb.h"

namespace companion {

class Questions {
 public:
  // all: yes to every one, without asking.
  Questions(Output& output, bool all) : output_(output), all_(all) {}

  // Asks again after any other letter; the end of input means no to all.
  bool Agreed(std::string_view question);

 private:
  Output& output_;
  bool all_;
  bool none_ = false;
};

}  // namespace companion
