// The monkey finds what is broken, finds it again, and makes a story of it.
#include <gtest/gtest.h>

#include "tests/kit/fresh_folder.h"
#include "tests/monkey/broken_disks.h"
#include "tests/monkey/random_desk.h"
#include "tests/monkey/run.h"
#include "tests/monkey/shrink.h"
#include "tests/story/story_file.h"
#include "tests/story/story_runner.h"

namespace monkey {
namespace {

PlayedRun RunOf(std::uint64_t seed, const Setting& setting) {
  Figures figures;
  Progress progress;
  return PlayRun(seed, false, setting, figures, progress);
}

class MonkeyOn : public testing::TestWithParam<BrokenDisk> {};

TEST_P(MonkeyOn, FindsItAgainInASmallStory) {
  const Setting setting = {{}, GetParam().Wrapper};
  std::uint64_t seed = 1;
  PlayedRun run = RunOf(seed, setting);
  while (!run.Found && seed < 100) run = RunOf(++seed, setting);
  ASSERT_TRUE(run.Found);
  EXPECT_TRUE(run.Found->What.starts_with(GetParam().Finding)) << run.Found->What;
  EXPECT_EQ(run.Found->Event, run.Played.Events.size());

  EXPECT_EQ(RunOf(seed, setting).Found->What, run.Found->What);
  EXPECT_FALSE(RunOf(seed, {}).Found) << "found on a sound disk too";

  auto fails = [&](const Script& script) {
    std::optional<Finding> again = Replay(script, setting);
    return again && KindOf(again->What) == KindOf(run.Found->What);
  };
  const Script small = Shrunk(run.Played, fails, 1500);
  EXPECT_TRUE(fails(small));
  EXPECT_LE(small.Events.size(), 8U);
  std::vector<story::Story> stories = story::ParseStories(StoryOf(small, setting, run.Found->What));
  ASSERT_EQ(stories.size(), 1U);
  EXPECT_GE(stories[0].Lines.size(), 1 + small.Events.size());
  if (GetParam().Stops) return;
  kit::FreshFolder fresh;
  const std::filesystem::path folder = fresh.Path() / "folder";
  std::filesystem::create_directory(folder);
  std::optional<story::Difference> difference = story::PlayLines(stories[0].Lines, folder, folder, {});
  EXPECT_FALSE(difference) << difference->What;
}

INSTANTIATE_TEST_SUITE_P(A, MonkeyOn, testing::ValuesIn(BrokenDisks()),
                         [](const auto& disk) { return disk.param.Name; });

TEST(Monkey, FindsNothingOnASoundDisk) {
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    PlayedRun run = RunOf(seed, {});
    EXPECT_FALSE(run.Found) << "seed " << seed << ": " << run.Found->What;
  }
}

TEST(Monkey, MakesUpTheSameRunUpToAnEvent) {
  for (std::uint64_t seed = 1; seed <= 10; ++seed) {
    const Script played = RunOf(seed, {}).Played;
    const std::uint64_t half = played.Events.size() / 2;
    const Script made_up = ScriptUpTo(half, seed, false, {});
    ASSERT_EQ(made_up.Events.size(), half);
    for (std::size_t event = 0; event < half; ++event)
      ASSERT_EQ(Notation(made_up.Events[event]), Notation(played.Events[event]));
  }
}

// Answers that enter that genre in the first input box of an event.
std::uint64_t AnswersThatEnter(std::string_view genre) {
  for (std::uint64_t answers = 0;; ++answers) {
    RandomDesk desk;
    desk.BeginEvent(answers);
    if (desk.InputBox("", "Genre") == genre) return answers;
  }
}

std::string Film(std::string_view title, std::string_view genre) {
  store::FilmRecord film;
  film.Set(store::FilmField::Title, title);
  film.Set(store::FilmField::Genre, genre);
  film.Set(store::FilmField::Tail, "\r\n");
  return {film.Bytes.data(), film.Bytes.size()};
}

std::string Key(std::string title, int slot) {
  title.resize(40, ' ');
  return title + "000000" + std::to_string(slot) + "\r\n";
}

TEST(Monkey, CountsAWalkWithoutAnEndAndGoesOn) {
  Script script;
  script.Films.Films = {Film("Casablanca", "DR"), Film("Solaris", "SF"), Film("Zulu", "WE")};
  script.Films.Files["Titlepra.Dat"] = Key("", 1) + Key("", 1) + Key("Casablanca", 1) + Key("Solaris", 2);
  script.Events.push_back({.What = Act::Click, .Name = "mnuFindGenre", .Answers = AnswersThatEnter("SF")});
  script.Events.push_back({.What = Act::Click, .Name = "cmdPrevious"});
  Figures figures;
  const Setting setting;
  Play play(script, setting, figures);
  ASSERT_EQ(play.Start(), "");
  for (const Event& event : script.Events) ASSERT_EQ(play.Do(event), "");
  EXPECT_EQ(figures.EndlessWalks, 1U);
  EXPECT_TRUE(play.NeedsStart());
  EXPECT_EQ(play.Finish(), "");
}

TEST(Monkey, CountsEachHandlerOnce) {
  Figures figures;
  Script script;
  const Setting setting;
  Play play(script, setting, figures);
  play.Start();
  std::size_t never = figures.Handlers.NeverRun().size();
  EXPECT_GT(never, 150U);
  for (int time = 0; time < 2; ++time) play.Do({.What = Act::Click, .Name = "cmdReset"});
  EXPECT_EQ(figures.Handlers.NeverRun().size(), never - 1);
}

Event Typed(const std::string& text) { return {.What = Act::Type, .Text = text}; }

TEST(Shrink, LeavesWhatTheFailureNeeds) {
  Script script;
  for (int number = 0; number < 100; ++number) script.Events.push_back(Typed(std::to_string(number)));
  script.Films.Films.assign(9, "film");
  script.Films.Behind = "behind";
  script.Films.Files = {{"needed", "a"}, {"other", "b"}};
  auto fails = [](const Script& smaller) {
    std::string typed;
    for (const Event& event : smaller.Events) typed += event.Text + ",";
    return typed.find("17,") != std::string::npos && typed.find("80,") != std::string::npos &&
           smaller.Films.Files.contains("needed");
  };
  const Script small = Shrunk(script, fails, 1000);
  ASSERT_EQ(small.Events.size(), 2U);
  EXPECT_EQ(small.Events[0].Text + small.Events[1].Text, "1780");
  EXPECT_TRUE(small.Films.Films.empty());
  EXPECT_EQ(small.Films.Behind, "");
  EXPECT_EQ(small.Films.Files.size(), 1U);
}

TEST(Shrink, PlaysNoMoreThanItMay) {
  Script script;
  script.Events.assign(64, Typed("x"));
  int plays = 0;
  auto fails = [&](const Script&) { return ++plays < 0; };
  Shrunk(script, fails, 3);
  EXPECT_EQ(plays, 3);
}

}  // namespace
}  // namespace monkey
