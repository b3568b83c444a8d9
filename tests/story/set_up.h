// The set-up lines of a story: what stands in the working folder, in the drives and on the clock before the program
// runs.
#pragma once

#include <filesystem>

#include "tests/story/story_file.h"
#include "tests/story/world.h"

namespace story {

// The files as delivered, with the opening windows, Auto Save and Auto Sort turned off, into the empty working folder;
// the folder's own disk as drive c.
void LayOutFolder(World& world, const std::filesystem::path& delivered);

// Plays one set-up line; story_folder: what the paths of the line are relative to. Throws Difference for a line that
// cannot be played.
void SetUp(World& world, const Line& line, const std::filesystem::path& story_folder);

}  // namespace story
