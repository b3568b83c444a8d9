// Plays stories on a mutated copy of the program. Each line of the input is a story: a file, a tab, a row of its table.
// --reached prints for each story how long it took and the numbers that it reached; else the first story that fails is
// printed and ends the run with status 1.
#include <sys/time.h>

#include <chrono>
#include <filesystem>
#include <iostream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/kit/fresh_folder.h"
#include "tests/mutation/reached.h"
#include "tests/story/story_runner.h"

namespace {

namespace fs = std::filesystem;

// A story that computes for longer hangs: the signal of the timer ends the process.
void LimitTime() {
  constexpr itimerval FiveSeconds = {{0, 0}, {5, 0}};
  setitimer(ITIMER_PROF, &FiveSeconds, nullptr);
}

bool Passes(const story::Story& one, const fs::path& path) {
  kit::FreshFolder fresh;
  fs::path folder = fresh.Path() / "folder";
  fs::create_directory(folder);
  return !story::PlayLines(one.Lines, folder, path.parent_path(), {});
}

std::vector<story::Story> StoriesOf(const std::string& path) {
  static std::map<std::string, std::vector<story::Story>> read;
  if (!read.contains(path)) read[path] = story::ReadStories(path);
  return read[path];
}

// Whether it passes; prints what it reached if asked.
bool Play(const story::Story& one, const std::string& path, bool reached) {
  LimitTime();
  auto start = std::chrono::steady_clock::now();
  bool passes = Passes(one, path);
  auto time = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
  if (reached || !passes) std::cout << path << '\t' << one.Row << '\t' << time.count() << '\t';
  if (reached && passes) mutation::WriteReached(std::cout);
  return passes;
}

}  // namespace

int main(int argc, char** argv) {
  bool reached = argc > 1 && std::string_view(argv[1]) == "--reached";
  if (reached) {
    std::cout << "start\t\t0\t";
    mutation::WriteReached(std::cout);
  }
  for (std::string line; std::getline(std::cin, line);) {
    std::string path = line.substr(0, line.find('\t'));
    bool every_row = line.find('\t') == std::string::npos;
    for (const story::Story& one : StoriesOf(path)) {
      if (!every_row && one.Row != line.substr(path.size() + 1)) continue;
      if (!Play(one, path, reached)) return 1;
    }
  }
}
