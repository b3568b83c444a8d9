// Plays the stories of the companion: each verb has a file of them.
#include "tests/companion/command_story.h"

#include <gtest/gtest.h>

#include "companion/verbs.h"
#include "tests/kit/source_tree.h"

namespace command_story {
namespace {

class CommandStory : public testing::TestWithParam<std::string> {
 protected:
  std::filesystem::path File() const {
    return kit::SourceFolder() / "tests/companion/stories" / (GetParam() + ".commands");
  }
};

TEST_P(CommandStory, Holds) {
  const std::vector<Story> stories = ReadStories(File());
  EXPECT_FALSE(stories.empty()) << File();
  for (const Story& story : stories) {
    const std::string complaint = Play(story);
    if (complaint.empty()) continue;
    ADD_FAILURE() << File().string() << ":" << story.Line << ": " << story.Sentence << "\n" << complaint;
  }
}

std::vector<std::string> Files() {
  std::vector<std::string> files = {"command"};
  for (const companion::Verb& verb : companion::Verbs()) files.emplace_back(verb.Name);
  return files;
}

std::string NameOf(const testing::TestParamInfo<std::string>& file) {
  std::string name = file.param;
  std::erase(name, '-');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Verbs, CommandStory, testing::ValuesIn(Files()), NameOf);

TEST(CommandStoryRunner, TellsWhatWasPrintedInstead) {
  const Story wrong{"", 1, {"film 1 Title=\"Alien\"", "$ history", "> Nothing."}};
  EXPECT_EQ(Play(wrong), "$ history\nprinted instead:\n> No film has been overwritten.\n");
  const Story status{"", 1, {"$ history", "> No film has been overwritten.", "= 1"}};
  EXPECT_EQ(Play(status), "$ history\nprinted instead:\n> No film has been overwritten.\n");
  const Story folder{"", 1, {"film 1 Title=\"Alien\"", "see film 1 Title \"Brazil\""}};
  EXPECT_EQ(Play(folder), "see film 1 Title \"Brazil\"\nexpected \"Brazil\", got \"Alien\"");
}

}  // namespace
}  // namespace command_story
