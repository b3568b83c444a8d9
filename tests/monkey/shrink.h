// Makes a failing run small: fewer events, fewer films, fewer files.
#pragma once

#include <functional>

#include "tests/monkey/events.h"

namespace monkey {

// Whether the script still fails in the same way.
using Fails = std::function<bool(const Script&)>;

// The smallest script found in at most that many plays.
Script Shrunk(const Script& script, const Fails& fails, int most_plays);

}  // namespace monkey
