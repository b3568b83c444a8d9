// Plays a story: lays out a fresh folder, runs the program on a planned desk, and goes through the lines up to the
// first difference.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "tests/story/checks.h"
#include "tests/story/planned_desk.h"
#include "tests/story/player.h"
#include "tests/story/story_file.h"

namespace story {

struct RunnerOptions {
  // Makes the player of each run of the program; empty: the bare one.
  PlayerFactory MakePlayer;
  // Leaves the folder of each story and prints where.
  bool Keep = false;
  // Where the pictures of the windows go; empty: none are taken.
  std::filesystem::path Pictures;
};

// Plays the stories of a file, each in a folder of its own: for each the first difference, or nothing. A file that
// cannot be read as a story counts as one story.
std::vector<std::optional<Difference>> PlayFile(const std::filesystem::path& path, const RunnerOptions& options);

// Plays the lines of one story in an empty folder of the caller; the first difference, or nothing.
std::optional<Difference> PlayLines(const std::vector<Line>& lines, const std::filesystem::path& folder,
                                    const std::filesystem::path& story_folder, const RunnerOptions& options);

}  // namespace story
