// How the help file's text is read and searched.
#include "help/help_file.h"

#include <gtest/gtest.h>

#include <chrono>

namespace help {
namespace {

TEST(ParseHelp, ReadsChaptersTopicsParagraphsAndItems) {
  HelpFile file = ParseHelp(
      "# a remark\r\n"
      "lost words\r\n"
      "\r\n"
      "== Buttons\r\n"
      "= Save {220 221} \r\n"
      "# a remark on Save\r\n"
      "Writes the \r\n"
      "film.\r\n"
      "\r\n"
      "Twice.\r\n"
      "- one\r\n"
      "  more\r\n"
      "- two\r\n"
      "= Nameless\r\n");
  ASSERT_EQ(file.Topics.size(), 2u);
  const HelpTopic& save = file.Topics[0];
  EXPECT_EQ(save.Chapter, "Buttons");
  EXPECT_EQ(save.Title, "Save");
  EXPECT_EQ(save.Numbers, (std::vector<int>{220, 221}));
  ASSERT_EQ(save.Paragraphs.size(), 4u);
  EXPECT_EQ(save.Paragraphs[0].Pieces[0].Text, "Writes the film.");
  EXPECT_FALSE(save.Paragraphs[1].Item);
  EXPECT_TRUE(save.Paragraphs[2].Item);
  EXPECT_EQ(save.Paragraphs[2].Pieces[0].Text, "one more");
  EXPECT_EQ(save.Paragraphs[3].Pieces[0].Text, "two");
  EXPECT_EQ(file.Topics[1].Title, "Nameless");
  EXPECT_TRUE(file.Topics[1].Numbers.empty());
}

TEST(ParseHelp, TellsLinksFromOtherBrackets) {
  HelpFile file = ParseHelp("= T {1}\nSee [170 the sort], [not this], [7] and [8 unclosed");
  const std::vector<HelpPiece>& pieces = file.Topics.at(0).Paragraphs.at(0).Pieces;
  ASSERT_EQ(pieces.size(), 3u);
  EXPECT_EQ(pieces[0].Text, "See ");
  EXPECT_EQ(pieces[1].Text, "the sort");
  EXPECT_EQ(pieces[1].Link, 170);
  EXPECT_EQ(pieces[2].Text, ", [not this], [7] and [8 unclosed");
  EXPECT_EQ(pieces[2].Link, 0);
}

TEST(ParseHelp, TakesAnythingForAFile) {
  EXPECT_TRUE(ParseHelp("").Topics.empty());
  EXPECT_TRUE(ParseHelp(std::string("\0\xff\n\n[[{", 7)).Topics.empty());
  EXPECT_EQ(ParseHelp("= {").Topics.size(), 1u);
  EXPECT_EQ(ParseHelp("= A {99999999999999 x").Topics.at(0).Numbers.size(), 0u);
}

TEST(HelpFile, FindsATopicByEachOfItsNumbers) {
  HelpFile file = ParseHelp("= A {1}\n= B {2 3}\n");
  EXPECT_EQ(file.Find(3)->Title, "B");
  EXPECT_EQ(file.Find(1)->Title, "A");
  EXPECT_EQ(file.Find(4), nullptr);
  EXPECT_EQ(file.Find(0), nullptr);
}

TEST(HelpTopic, HoldsAllWordsInCapitalsOrNot) {
  HelpFile file = ParseHelp("= Laser discs {1}\nPress [2 Enter] twice.\n");
  const HelpTopic& topic = file.Topics.at(0);
  EXPECT_TRUE(topic.Contains("laser"));
  EXPECT_TRUE(topic.Contains("ENTER laser"));
  EXPECT_TRUE(topic.Contains("press enter twice"));
  EXPECT_FALSE(topic.Contains("laser tape"));
  EXPECT_FALSE(topic.Contains("discspress"));
  EXPECT_FALSE(topic.Contains("laser qenter"));
  EXPECT_FALSE(topic.Contains("ylaser"));
  EXPECT_TRUE(ParseHelp("= AaZz {1}\n").Topics.at(0).Contains("aAzZ"));
  EXPECT_FALSE(ParseHelp("= a[b {1}\n").Topics.at(0).Contains("a{b"));
}

// A search for the end of each link, through the whole text, would take a quarter of a minute.
TEST(ParseHelp, ReadsAMegabyteOfLinksWithoutAnEndAtOnce) {
  for (const char* piece : {"[1 ", "[1", "[", "[1 a]"}) {
    for (const char* end : {"", "]"}) {
      std::string text;
      while (text.size() < 1024 * 1024) text += piece;
      const auto start = std::chrono::steady_clock::now();
      ParseHelp("= Topic {1}\n" + text + end + "\n");
      EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3)) << piece << end;
    }
  }
  HelpFile file = ParseHelp("= Topic {1}\n[1 [1[2 b] [3 c\n");
  ASSERT_EQ(file.Topics[0].Paragraphs[0].Pieces.size(), 2U);
  EXPECT_EQ(file.Topics[0].Paragraphs[0].Pieces[0].Text, "[1[2 b");
  EXPECT_EQ(file.Topics[0].Paragraphs[0].Pieces[1].Text, " [3 c");
}

}  // namespace
}  // namespace help
