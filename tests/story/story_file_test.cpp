// Lines of stories: arguments, escapes, the code page, the verbs.
#include "tests/story/story_file.h"

#include <gtest/gtest.h>

namespace story {
namespace {

// The difference that the line is refused with; an empty one where it is taken.
Difference RefusalOf(std::string_view line) {
  try {
    ParseLine(line, 7);
  } catch (const Difference& difference) {
    return difference;
  }
  return {};
}

TEST(StoryLine, TakesBareWordsAndTexts) {
  Line line = ParseLine("  pick List1   \"AA = Action Adventure\"  ", 3);
  EXPECT_EQ(line.Number, 3);
  EXPECT_EQ(line.As, Role::Action);
  EXPECT_EQ(line.Verb, "pick");
  ASSERT_EQ(line.Arguments.size(), 2u);
  EXPECT_EQ(line.Arguments[0], (Argument{Argument::Form::Word, "List1"}));
  EXPECT_EQ(line.Arguments[1], (Argument{Argument::Form::Text, "AA = Action Adventure"}));
}

TEST(StoryLine, TakesFields) {
  Line line = ParseLine("film 12 Title=\"Third Man, The\" Format=\"\"", 1);
  ASSERT_EQ(line.Arguments.size(), 3u);
  EXPECT_EQ(line.Number32(0), 12);
  EXPECT_EQ(line.Arguments[1], (Argument{Argument::Form::Field, "Third Man, The", "Title"}));
  EXPECT_EQ(line.Arguments[2], (Argument{Argument::Form::Field, "", "Format"}));
}

TEST(StoryLine, ResolvesEscapes) {
  EXPECT_EQ(ParseLine(R"(type "a\"b\\c\r\n\x41\xe91")", 1).Text(0),
            "a\"b\\c\r\nA\xE9"
            "1");
}

TEST(StoryLine, TurnsUtf8IntoTheCodePage) {
  EXPECT_EQ(ParseLine("type \"Amélie – 5 €\"", 1).Text(0), "Am\xE9lie \x96 5 \x80");
  EXPECT_EQ(ParseLine("key é", 1).Text(0), "\xE9");
}

TEST(StoryLine, RefusesWhatTheCodePageLacks) {
  EXPECT_EQ(RefusalOf("type \"Солярис\"").Line, 7);
  EXPECT_EQ(RefusalOf("type \"\xC3\"").Line, 7);
}

TEST(StoryLine, RefusesBrokenTexts) {
  EXPECT_EQ(RefusalOf("type \"abc").What, "expected a closing quote, came the end of the line");
  EXPECT_EQ(RefusalOf("type \"abc\\").What, "expected a closing quote, came the end of the line");
  EXPECT_EQ(RefusalOf("type \"a\\tb\"").What, "expected one of the escapes \\\" \\\\ \\n \\r \\xHH, came \\t");
  EXPECT_EQ(RefusalOf("type \"\\x4\"").What, "expected two hexadecimal digits after \\x");
  EXPECT_EQ(RefusalOf("type \"a\"b").What, "expected a blank after the closing quote");
  EXPECT_EQ(RefusalOf("pick List1\"a\"").What, "expected a blank before the quote");
}

TEST(StoryLine, RefusesUnknownVerbs) {
  EXPECT_EQ(RefusalOf("press cmdNext").What, "expected a verb of the stories, came press");
  EXPECT_EQ(RefusalOf("press cmdNext").Line, 7);
  EXPECT_EQ(RefusalOf("\"click\" cmdNext").What, "expected a verb, came \"click\"");
}

TEST(StoryLine, RefusesArgumentsThatAVerbDoesNotTake) {
  for (const char* line : {"click",
                           "click \"cmdNext\"",
                           "click cmdNext cmdNext",
                           "film Title=\"A\"",
                           "film x Title=\"A\"",
                           "film 1 \"A\"",
                           "films 1 Title=\"A\"",
                           "sorted 1",
                           "type abc",
                           "start twice",
                           "beep 2",
                           "box warning \"\" \"text\"",
                           "input \"\" \"prompt\"",
                           "printed many",
                           "see",
                           "see focus",
                           "see state CurrentRecNo abc",
                           "see film 1 Title",
                           "see length Recpra.Dat \"5\"",
                           "see page 1 line \"text\"",
                           "see txtTitle \"a\" no"}) {
    EXPECT_NE(RefusalOf(line).What, "") << line;
  }
}

TEST(StoryLine, KnowsWhatEachLineDoes) {
  EXPECT_EQ(ParseLine("key Titlepra.Dat \"Alien\" 1", 1).As, Role::SetUp);
  EXPECT_EQ(ParseLine("key Shift+Tab", 1).As, Role::Action);
  EXPECT_EQ(ParseLine("start opener", 1).As, Role::Action);
  EXPECT_EQ(ParseLine("close", 1).As, Role::Action);
  EXPECT_EQ(ParseLine("close frmInfo", 1).As, Role::Action);
  EXPECT_EQ(ParseLine("box warning ANY \"text\" OK", 1).As, Role::Effect);
  EXPECT_EQ(ParseLine("input \"\" \"prompt\" cancel", 1).As, Role::Effect);
  EXPECT_EQ(ParseLine("see List1.Items", 1).As, Role::Check);
  EXPECT_EQ(ParseLine("see List1.Items \"a\" \"b\"", 1).As, Role::Check);
  EXPECT_EQ(ParseLine("see state KeyRecord \"\"", 1).As, Role::Check);
  EXPECT_EQ(ParseLine("see page 1 lines 53", 1).As, Role::Check);
}

TEST(StoryLine, TurnsBackIntoItsNotation) {
  for (const char* line :
       {"film 1 Title=\"Amélie\"", "box none \"\" \"a\\n\\rb \\\"c\\\" \\\\ \\x01\" OK", "key Alt+X"}) {
    EXPECT_EQ(ParseLine(line, 1).Notation(), line);
  }
}

TEST(StoryLine, RefusesNumbersThatDoNotFit) {
  Line line = ParseLine("printed 99999999999", 4);
  EXPECT_THROW(line.Number32(0), Difference);
}

TEST(StoryText, PassesOverBlankLinesAndComments) {
  std::vector<Line> lines = ParseStory("# a comment\n\n  \n   # another\r\nstart\r\nclick cmdNext");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].Number, 5);
  EXPECT_EQ(lines[1].Number, 6);
  EXPECT_EQ(lines[1].Text(0), "cmdNext");
}

TEST(StoryText, NamesTheLineThatItCannotTake) {
  try {
    ParseStory("start\n\nfly\n");
    FAIL() << "the line was taken";
  } catch (const Difference& difference) {
    EXPECT_EQ(difference.Line, 3);
  }
}

TEST(StoryText, RefusesAFileThatIsNotThere) { EXPECT_THROW(ReadStory("/no such folder/no such.story"), Difference); }

}  // namespace
}  // namespace story
