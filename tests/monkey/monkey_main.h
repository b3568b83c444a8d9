// The command line of reelora_monkey.
#pragma once

#include "tests/story/player.h"

namespace monkey {

// [--events N] [--seed S] [--run S] [--faults] [--desktop] [--story FILE]. --run plays the run of one seed, as a
// finding names it. --desktop is refused if widget_factory is empty. The exit status: 0 nothing found, 1 a finding, 2
// arguments that cannot be understood.
int RunMonkey(int argc, char** argv, const story::PlayerFactory& widget_factory);

}  // namespace monkey
