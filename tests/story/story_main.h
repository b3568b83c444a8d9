// The command line of reelora_story.
#pragma once

#include "tests/story/player.h"

namespace story {

// Plays the stories that the arguments name: [--desktop] [--keep] [--pictures FOLDER] FILE_OR_FOLDER... Folders are
// searched for stories at any depth. widget_factory makes the players of --desktop; where it is empty, --desktop is
// refused. The exit status: 0 all passed, 1 any failed, 2 arguments that cannot be understood.
int RunStories(int argc, char** argv, const PlayerFactory& widget_factory);

}  // namespace story
