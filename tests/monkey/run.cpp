// The dice of a run decide its collection first, then its events.
#include "tests/monkey/run.h"

namespace monkey {
namespace {

constexpr std::size_t FewestEvents = 50, MoreEvents = 500;

// What a seed decides before the first event.
struct Beginning {
  Beginning(std::uint64_t seed, bool faults, const Setting& setting) : Throws(seed) {
    Ways.Faults = Throws.OneIn(8) || faults;
    Ways.Kills = Ways.AnyByte = !setting.MakePlayer;
    Start.Films = RandomCollection(Throws);
    Start.AtOpener = Throws.OneIn(4);
    Start.Clock = RandomClock(Throws);
    Start.Answers = Throws.Next();
    Events = FewestEvents + Throws.Below(MoreEvents);
  }

  Dice Throws;
  Habits Ways;
  Script Start;
  std::size_t Events = 0;
};

Event NextEvent(const Play& play, Beginning& run) {
  return play.NeedsStart() ? RandomStart(run.Throws) : RandomEvent(play.Running(), run.Ways, run.Throws);
}

void AddEffects(std::string& story, const Play& play) {
  for (const std::string& effect : play.Effects()) story += effect + "\n";
}

}  // namespace

std::string KindOf(const std::string& what) { return what.substr(0, what.find_first_of("0123456789:")); }

PlayedRun PlayRun(std::uint64_t seed, bool faults, const Setting& setting, Figures& figures, Progress& progress) {
  Beginning run(seed, faults, setting);
  ++figures.Runs;
  if (run.Ways.Faults) ++figures.FaultyRuns;
  progress.Seed = seed;
  progress.Event = 0;
  PlayedRun played{run.Start, std::nullopt};
  Play play(run.Start, setting, figures);
  std::string wrong = play.Start();
  for (std::size_t number = 1; wrong.empty() && number <= run.Events && !play.Over(); ++number) {
    played.Played.Events.push_back(NextEvent(play, run));
    progress.Event = number;
    wrong = play.Do(played.Played.Events.back());
  }
  std::size_t at = played.Played.Events.size();
  if (wrong.empty()) {
    progress.Event = ++at;
    wrong = play.Finish();
  }
  if (!wrong.empty()) played.Found = Finding{wrong, at};
  return played;
}

Script ScriptUpTo(std::uint64_t event, std::uint64_t seed, bool faults, const Setting& setting) {
  Beginning run(seed, faults, setting);
  Script script = run.Start;
  if (event == 0) return script;
  const Setting bare = {{}, setting.Wrapper};
  Figures figures;
  Play play(run.Start, bare, figures);
  for (play.Start(); script.Events.size() < event && !play.Over();) {
    if (script.Events.size() == run.Events) break;
    script.Events.push_back(NextEvent(play, run));
    if (script.Events.size() < event) play.Do(script.Events.back());
  }
  return script;
}

std::optional<Finding> Replay(const Script& script, const Setting& setting) {
  Figures figures;
  Play play(script, setting, figures);
  std::string wrong = play.Start();
  std::size_t number = 0;
  while (wrong.empty() && number < script.Events.size() && !play.Over()) wrong = play.Do(script.Events[number++]);
  if (wrong.empty()) {
    ++number;
    wrong = play.Finish();
  }
  return wrong.empty() ? std::nullopt : std::optional(Finding{wrong, number});
}

std::string StoryOf(const Script& script, const Setting& setting, const std::string& what, std::size_t unplayed) {
  std::string story = "# " + what + "\n" + SetUpLines(script.Films) + "drive a disk\ndrive b none\nclock " +
                      ClockText(script.Clock) + (script.AtOpener ? "\nstart opener\n" : "\nstart\n");
  Figures figures;
  Play play(script, setting, figures);
  std::string wrong = play.Start();
  AddEffects(story, play);
  for (std::size_t event = 0; event < script.Events.size(); ++event) {
    story += Notation(script.Events[event]) + "\n";
    if (!wrong.empty() || event + unplayed >= script.Events.size()) continue;
    wrong = play.Do(script.Events[event]);
    AddEffects(story, play);
  }
  return story;
}

}  // namespace monkey
