// The see lines of a story: what a person would see on the screen, on the disk and on paper.
#pragma once

#include <filesystem>

#include "app/program.h"
#include "tests/story/story_file.h"
#include "tests/story/world.h"

namespace story {

// Program: nullptr before the start, when only the files can be seen. StoryFolder: what the paths of a line are
// relative to.
struct Scene {
  const Program* Running;
  const World& Around;
  const std::filesystem::path& StoryFolder;
};

// Throws Difference where the line does not hold, or names what there is not.
void Check(const Scene& scene, const Line& line);

// The lines that are seen on disk and on paper; false where the line is none of them.
bool CheckFiles(const Scene& scene, const Line& line);

}  // namespace story
