// The runs are played in a child. A finding that it survives is shrunk there; a crash or a hang is shrunk by its
// parent, which tries each smaller run in a child of its own.
#include "tests/monkey/monkey_main.h"

#include <charconv>
#include <fstream>
#include <iostream>
#include <optional>
#include <string_view>
#include <vector>

#include "tests/monkey/child.h"
#include "tests/monkey/run.h"
#include "tests/monkey/shrink.h"

namespace monkey {
namespace {

constexpr std::string_view Usage =
    "usage: reelora_monkey [--events N] [--seed S] [--run S] [--faults] [--desktop] [--story FILE]\n";
constexpr int Found = 10;  // the status of a child that has found something
constexpr int MostFindings = 5;
constexpr int MostPlays = 1500, MostOnWidgets = 300, MostCrashes = 100;
constexpr unsigned RunSeconds = 120, CrashSeconds = 30;

struct CommandLine {
  std::uint64_t Events = 100000;
  std::uint64_t Seed = 1;
  std::optional<std::uint64_t> OneRun;
  bool Faults = false;
  std::string StoryFile;
  Setting How;
};

bool ReadNumber(std::string_view text, std::uint64_t& number) {
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

std::optional<CommandLine> Read(const std::vector<std::string_view>& arguments,
                                const story::PlayerFactory& widget_factory) {
  CommandLine command;
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    std::string_view option = arguments[index], value = index + 1 < arguments.size() ? arguments[index + 1] : "";
    bool takes_value = option == "--events" || option == "--seed" || option == "--run" || option == "--story";
    if (takes_value) ++index;
    if (option == "--faults") {
      command.Faults = true;
    } else if (option == "--desktop" && widget_factory) {
      command.How.MakePlayer = widget_factory;
    } else if (option == "--story" && !value.empty()) {
      command.StoryFile = value;
    } else if (option == "--run") {
      if (!ReadNumber(value, command.OneRun.emplace())) return std::nullopt;
    } else if (option == "--events" || option == "--seed") {
      if (!ReadNumber(value, option == "--seed" ? command.Seed : command.Events)) return std::nullopt;
    } else {
      return std::nullopt;
    }
  }
  return command;
}

std::string Replaying(const CommandLine& command, std::uint64_t seed) {
  return "reelora_monkey --run " + std::to_string(seed) + (command.Faults ? " --faults" : "") +
         (command.How.MakePlayer ? " --desktop" : "");
}

void Tell(const CommandLine& command, std::uint64_t seed, const Finding& finding, const Script& small,
          std::size_t unplayed = 0) {
  const std::string head =
      "seed " + std::to_string(seed) + ", event " + std::to_string(finding.Event) + ": " + finding.What;
  const std::string story = StoryOf(small, {}, head, unplayed);
  std::cout << head << "\nagain: " << Replaying(command, seed) << "\n" << story << std::flush;
  if (!command.StoryFile.empty()) std::ofstream(command.StoryFile, std::ios::binary) << story;
}

void TellFigures(const Figures& figures) {
  std::cout << figures.Events << " events in " << figures.Runs << " runs, " << figures.FaultyRuns
            << " of them with faults of the disk; " << figures.Starts << " starts, " << figures.Kills << " kills\n";
  for (const auto& [name, count] : figures.Failures) std::cout << "stopped by " << name << ": " << count << "\n";
  std::cout << "endless walks back through a genre over blank keys, kept: " << figures.EndlessWalks << "\n";
  const std::vector<std::string> never = figures.Handlers.NeverRun();
  std::cout << "handlers run: " << figures.Handlers.All() - never.size() << " of " << figures.Handlers.All();
  for (const std::string& name : never) std::cout << (name == never.front() ? "; never: " : ", ") << name;
  std::cout << "\n";
}

int PlayRuns(const CommandLine& command, Progress& progress) {
  Figures figures;
  Dice seeds(command.Seed);
  int failed = 0;
  while (failed < MostFindings && figures.Events < command.Events) {
    LimitSeconds(RunSeconds);
    const std::uint64_t seed = command.OneRun.value_or(seeds.Next());
    PlayedRun run = PlayRun(seed, command.Faults, command.How, figures, progress);
    LimitSeconds(0);
    if (run.Found) {
      ++failed;
      auto fails = [&](const Script& script) {
        std::optional<Finding> again = Replay(script, command.How);
        return again && KindOf(again->What) == KindOf(run.Found->What);
      };
      Tell(command, seed, *run.Found, Shrunk(run.Played, fails, command.How.MakePlayer ? MostOnWidgets : MostPlays));
    } else {
      ++progress.Passed;
    }
    if (command.OneRun) break;
  }
  TellFigures(figures);
  std::cout << progress.Passed << " passed, " << failed << " failed" << std::endl;
  return failed == 0 ? 0 : Found;
}

// A run that has ended its process: it is made up anew to the event that did so.
void TellCrash(const CommandLine& command, const Progress& progress, const ChildEnd& end) {
  const Finding finding{"the program has ended its process: " + end.Text(), progress.Event};
  Script script = ScriptUpTo(progress.Event, progress.Seed, command.Faults, command.How);
  auto fails = [&](const Script& smaller) {
    Progress ignored;
    auto play = [&](Progress&) {
      LimitSeconds(CrashSeconds);
      Replay(smaller, command.How);
      return 0;
    };
    ChildEnd again = InChild(play, ignored, true);
    return !again.Exited || again.Number != 0;
  };
  script = Shrunk(script, fails, MostCrashes);
  Tell(command, progress.Seed, finding, script, 1);
  std::cout << progress.Passed << " passed, 1 failed" << std::endl;
}

}  // namespace

int RunMonkey(int argc, char** argv, const story::PlayerFactory& widget_factory) {
  std::optional<CommandLine> command = Read({argv + 1, argv + argc}, widget_factory);
  if (!command) {
    std::cerr << Usage;
    return 2;
  }
  Progress progress;
  ChildEnd end = InChild([&](Progress& shared) { return PlayRuns(*command, shared); }, progress, false);
  if (end.Exited && end.Number == 0) return 0;
  if (!end.Exited || end.Number != Found) TellCrash(*command, progress, end);
  return 1;
}

}  // namespace monkey
