// What ends the process of the program is found by the parent of that process.
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "tests/kit/fresh_folder.h"
#include "tests/monkey/child.h"
#include "tests/monkey/monkey_main.h"
#include "tests/story/bare_player.h"

namespace monkey {
namespace {

TEST(Child, TellsHowItEnded) {
  Progress progress;
  ChildEnd end = InChild([](Progress& shared) { return shared.Event = 5, 3; }, progress, true);
  EXPECT_EQ(end.Text(), "status 3");
  EXPECT_EQ(progress.Event, 5U);
  EXPECT_EQ(InChild([](Progress&) -> int { std::abort(); }, progress, true).Text(),
            "signal " + std::to_string(SIGABRT));
}

// Crashes at F1.
class CrashingPlayer final : public story::Player {
 public:
  explicit CrashingPlayer(Program& program) : bare_(program) {}
  void Click(const std::string& name) override { bare_.Click(name); }
  void DblClick(const std::string& name) override { bare_.DblClick(name); }
  void Move(const std::string& name) override { bare_.Move(name); }
  void Pick(const std::string& list, const std::string& item) override { bare_.Pick(list, item); }
  void Key(const std::string& key) override {
    if (key == "F1") std::abort();
    bare_.Key(key);
  }
  void Type(const std::string& text) override { bare_.Type(text); }
  void Clear() override { bare_.Clear(); }
  void Close(const std::string& window) override { bare_.Close(window); }

 private:
  story::BarePlayer bare_;
};

TEST(Crash, IsShrunkToAStory) {
  kit::FreshFolder folder;
  std::string file = folder.Path() / "found.story";
  std::string arguments[] = {"monkey", "--desktop", "--events", "5000", "--story", file};
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  testing::internal::CaptureStdout();
  int status = RunMonkey(static_cast<int>(argv.size()), argv.data(),
                         [](Program& program) { return std::make_unique<CrashingPlayer>(program); });
  std::string told = testing::internal::GetCapturedStdout();
  EXPECT_EQ(status, 1);
  EXPECT_NE(told.find("the program has ended its process: signal " + std::to_string(SIGABRT)), std::string::npos)
      << told;
  EXPECT_TRUE(told.ends_with(" passed, 1 failed\n")) << told;
  std::ifstream stream(file);
  const std::string story(std::istreambuf_iterator<char>(stream), {});
  EXPECT_TRUE(story.ends_with("\nkey F1\n")) << story;
  EXPECT_EQ(story.find("click"), std::string::npos) << story;
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  for (std::string wrong : {"--evnts", "--desktop", "--events"}) {
    std::string program = "monkey";
    char* argv[] = {program.data(), wrong.data()};
    testing::internal::CaptureStderr();
    EXPECT_EQ(RunMonkey(2, argv, nullptr), 2) << wrong;
    EXPECT_TRUE(testing::internal::GetCapturedStderr().starts_with("usage:"));
  }
}

}  // namespace
}  // namespace monkey
