// The stories of the companion: a folder in, commands, what each prints, and a folder out. docs/companion.md has their
// language.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace command_story {

// The file's stories, each with the sentence above it.
struct Story {
  std::string Sentence;
  int Line = 0;
  std::vector<std::string> Lines;
};

std::vector<Story> ReadStories(const std::filesystem::path& file);

// Plays a story in a fresh folder. "" or the first line that does not hold, with what was seen instead.
std::string Play(const Story& story);

}  // namespace command_story
