// Plays a story: lays out a fresh folder, runs the program on a planned desk, and goes through the lines up to the
// first difference.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "tests/story/checks.h"
#include "tests/story/planned_desk.h"
#include "tests/story/player.h"
#include "tests/story/story_file.h"

namespace story {

struct RunnerOptions {
  // Makes the player of each run of the program; the bare one where there is none.
  PlayerFactory MakePlayer;
  // Leaves the folder of each story, and prints where.
  bool Keep = false;
  // Where the pictures of the windows go; none are taken where it is empty.
  std::filesystem::path Pictures;
};

// Plays one story in a folder of its own; the first difference, nothing where there is none.
std::optional<Difference> PlayStory(const std::filesystem::path& path, const RunnerOptions& options);

// The same for lines that are there already, in an empty folder of the caller.
std::optional<Difference> PlayLines(const std::vector<Line>& lines, const std::filesystem::path& folder,
                                    const std::filesystem::path& story_folder, const RunnerOptions& options);

}  // namespace story
