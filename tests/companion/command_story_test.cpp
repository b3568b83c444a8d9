// Plays the stories of the companion: each verb has a file of them.
#include "tests/companion/command_story.h"

#include <gtest/gtest.h>

#include "companion/verbs.h"
#include "tests/kit/source_tree.h"
#include "tests/story/world.h"

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

TEST(ManPage, HasASectionForEachVerbAndEachOption) {
  const std::string page = *story::ReadBytes(kit::SourceFolder() / "packaging/reelora-collection.1");
  for (const companion::Verb& verb : companion::Verbs()) {
    std::string heading = "\n.SS " + std::string(verb.Name);
    if (!verb.Arguments.empty()) heading.append(" ").append(verb.Arguments);
    const std::size_t at = page.find(heading + "\n");
    ASSERT_NE(at, std::string::npos) << heading;
    const std::string section = page.substr(at, page.find("\n.S", at + 1) - at);
    for (const companion::Option& option : verb.Options) {
      EXPECT_NE(section.find("\\-\\-" + std::string(option.Name)), std::string::npos)
          << verb.Name << " " << option.Name;
    }
  }
}

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
