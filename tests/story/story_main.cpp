// Finds the stories, plays them one after the other and counts.
#include "tests/story/story_main.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/story/story_runner.h"

namespace story {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Usage = "usage: reelora_story [--desktop] [--keep] [--pictures FOLDER] FILE_OR_FOLDER...\n";

struct CommandLine {
  RunnerOptions Options;
  std::vector<fs::path> Paths;
};

std::optional<CommandLine> Read(const std::vector<std::string_view>& words, const PlayerFactory& widget_factory) {
  CommandLine command;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (words[at] == "--keep") {
      command.Options.Keep = true;
    } else if (words[at] == "--desktop" && widget_factory) {
      command.Options.MakePlayer = widget_factory;
    } else if (words[at] == "--pictures" && at + 1 < words.size()) {
      command.Options.Pictures = words[++at];
    } else if (words[at].starts_with("--")) {
      return std::nullopt;
    } else {
      command.Paths.emplace_back(words[at]);
    }
  }
  return command.Paths.empty() ? std::nullopt : std::optional(command);
}

// The story itself, or the stories of a folder in the order of their names.
std::vector<fs::path> StoriesOf(const fs::path& path) {
  if (!fs::is_directory(path)) return {path};
  std::vector<fs::path> stories;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
    if (entry.is_regular_file() && entry.path().extension() == ".story") stories.push_back(entry.path());
  }
  std::sort(stories.begin(), stories.end());
  return stories;
}

// FILE:LINE: what differed, or FILE:LINE [ROW]: what differed.
std::string Report(const fs::path& path, const Difference& difference) {
  std::string row = difference.Row.empty() ? "" : " [" + difference.Row + "]";
  return path.string() + ":" + std::to_string(difference.Line) + row + ": " + difference.What;
}

}  // namespace

int RunStories(int argc, char** argv, const PlayerFactory& widget_factory) {
  std::optional<CommandLine> command = Read({argv + 1, argv + argc}, widget_factory);
  if (!command) {
    std::cerr << Usage;
    return 2;
  }
  if (!command->Options.Pictures.empty()) fs::create_directories(command->Options.Pictures);
  int passed = 0;
  int failed = 0;
  for (const fs::path& path : command->Paths) {
    std::vector<fs::path> stories = StoriesOf(path);
    if (stories.empty()) {
      std::cout << path.string() << ": " << Differs("a story", "a folder without one") << "\n";
      ++failed;
    }
    for (const fs::path& story_path : stories) {
      for (const std::optional<Difference>& difference : PlayFile(story_path, command->Options)) {
        ++(difference ? failed : passed);
        if (difference) std::cout << Report(story_path, *difference) << std::endl;
      }
    }
  }
  std::cout << passed << " passed, " << failed << " failed" << std::endl;
  return failed == 0 ? 0 : 1;
}

}  // namespace story
