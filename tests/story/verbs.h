// The verbs of the stories and the arguments that each takes.
#pragma once

#include "tests/story/story_file.h"

namespace story {

// What the line does; throws Difference for a verb that there is not or arguments that it does not take.
Role RoleOf(const Line& line);

}  // namespace story
