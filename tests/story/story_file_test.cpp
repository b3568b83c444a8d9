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
  EXPECT_EQ(RefusalOf("type \"abc").What, "expected a closing quote, got the end of the line");
  EXPECT_EQ(RefusalOf("type \"abc\\").What, "expected a closing quote, got the end of the line");
  EXPECT_EQ(RefusalOf("type \"a\\tb\"").What, "expected one of the escapes \\\" \\\\ \\n \\r \\xHH, got \\t");
  EXPECT_EQ(RefusalOf("type \"\\x4\"").What, "expected two hexadecimal digits after \\x");
  EXPECT_EQ(RefusalOf("type \"a\"b").What, "expected a blank after the closing quote");
  EXPECT_EQ(RefusalOf("pick List1\"a\"").What, "expected a blank before the quote");
}

TEST(StoryLine, RefusesUnknownVerbs) {
  EXPECT_EQ(RefusalOf("press cmdNext").What, "expected a verb of the stories, got press");
  EXPECT_EQ(RefusalOf("press cmdNext").Line, 7);
  EXPECT_EQ(RefusalOf("\"click\" cmdNext").What, "expected a verb, got \"click\"");
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
  EXPECT_EQ(ParseLine("key Down 3", 1).Number32(1), 3);
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

// The lines of a file without a table.
std::vector<Line> LinesOf(std::string_view text) {
  std::vector<Story> stories = ParseStories(text);
  EXPECT_EQ(stories.size(), 1u);
  EXPECT_EQ(stories[0].Row, "");
  return stories[0].Lines;
}

// Where and why the text is refused; an empty difference if it is taken.
Difference RefusalOfText(std::string_view text) {
  try {
    ParseStories(text);
  } catch (const Difference& difference) {
    return difference;
  }
  return {};
}

TEST(StoryText, SkipsBlankLinesAndComments) {
  std::vector<Line> lines = LinesOf("# a comment\n\n  \n   # another\r\nstart\r\nclick cmdNext");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].Number, 5);
  EXPECT_EQ(lines[1].Number, 6);
  EXPECT_EQ(lines[1].Text(0), "cmdNext");
}

TEST(StoryText, NamesTheLineThatItCannotTake) { EXPECT_EQ(RefusalOfText("start\n\nfly\n").Line, 3); }

TEST(StoryText, JoinsAContinuedTextToTheTextAbove) {
  std::vector<Line> lines = LinesOf("box none \"\" \"One, \"  \r\n  + \"two, \"\n# a comment\n+\"three\" OK\nstart\n");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].Number, 1);
  EXPECT_EQ(lines[0].Notation(), "box none \"\" \"One, two, three\" OK");
  EXPECT_EQ(lines[1].Number, 5);
}

TEST(StoryText, ContinuesALineWithFurtherArguments) {
  std::vector<Line> lines = LinesOf("film 1 Title=\"Third\"\n+ \" Man\" Format=\"V\"\n+ Genre=\"DR\"\n");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].Notation(), "film 1 Title=\"Third Man\" Format=\"V\" Genre=\"DR\"");
}

TEST(StoryText, RefusesABrokenContinuation) {
  EXPECT_EQ(RefusalOfText("+ \"a\"\n").What, "expected a line above the one that continues it, got + \"a\"");
  EXPECT_EQ(RefusalOfText("click\n+ \"a\"\n").What, "expected a text above the text that continues it");
  EXPECT_EQ(RefusalOfText("type \"a\n+ b\"\n").What, "expected a closing quote, got the end of the line");
  EXPECT_EQ(RefusalOfText("type \"a\"\n+\n").What, "expected more of the line after +");
  EXPECT_EQ(RefusalOfText("type \"a\"\n+\n+ \"b\"\n").What, "expected more of the line after +");
  EXPECT_EQ(RefusalOfText("see key\n+\n+ 1\n").What, "expected more of the line after +");
}

TEST(StoryText, LeavesSignsOfTheTableAlone) {
  std::vector<Line> lines = LinesOf("type \"{KEY} $KEY + each row\"\nkey {\nkey $\nkey +\n");
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0].Text(0), "{KEY} $KEY + each row");
  EXPECT_EQ(lines[1].Text(0), "{");
  EXPECT_EQ(lines[3].Text(0), "+");
}

TEST(StoryText, RefusesAMissingFile) { EXPECT_THROW(ReadStories("/no such folder/no such.story"), Difference); }

TEST(StoryTable, MakesAStoryOfEachRow) {
  std::vector<Story> stories = ParseStories(
      "# comment\n"
      "each KIND    BOX      COUNT\n"
      "row  \"é A\" txtTitle 1\n"
      "row  year    txtYear  22\n"
      "film {COUNT} Title=\"a{KIND}b{COUNT}\"\n"
      "click {BOX}\n"
      "see {BOX}.Text \"{KIND}\"\n");
  ASSERT_EQ(stories.size(), 2u);
  EXPECT_EQ(stories[0].Row, "é A");
  ASSERT_EQ(stories[0].Lines.size(), 3u);
  EXPECT_EQ(stories[0].Lines[0].Notation(), "film 1 Title=\"aé Ab1\"");
  EXPECT_EQ(stories[0].Lines[1].Notation(), "click txtTitle");
  EXPECT_EQ(stories[0].Lines[1].As, Role::Action);
  EXPECT_EQ(stories[0].Lines[1].Number, 6);
  EXPECT_EQ(stories[1].Row, "year");
  EXPECT_EQ(stories[1].Lines[0].Notation(), "film 22 Title=\"ayearb22\"");
  EXPECT_EQ(stories[1].Lines[2].Notation(), "see txtYear.Text \"year\"");
}

TEST(StoryTable, FillsInFieldsAndVerbs) {
  std::vector<Story> stories =
      ParseStories("each FIELD DOES\nrow Format click\nfilm 1 {FIELD}=\"D\"\n{DOES} cmdNext\n");
  EXPECT_EQ(stories[0].Lines[0].Notation(), "film 1 Format=\"D\"");
  EXPECT_EQ(stories[0].Lines[1].As, Role::Action);
}

TEST(StoryTable, FillsInAValueOnce) {
  std::vector<Story> stories = ParseStories("each NAME TEXT\nrow a \"{NAME}\"\ntype \"{TEXT}\"\n");
  EXPECT_EQ(stories[0].Lines[0].Text(0), "{NAME}");
}

TEST(StoryTable, JoinsTablesOfTheSameRows) {
  std::vector<Story> stories =
      ParseStories("each NAME A\nrow x 1\nrow y 2\neach NAME B\nrow x \"3\"\nrow y \"4\"\nsee txt{A} \"{B}\"\n");
  ASSERT_EQ(stories.size(), 2u);
  EXPECT_EQ(stories[1].Lines[0].Notation(), "see txt2 \"4\"");
}

TEST(StoryTable, RefusesABrokenTable) {
  auto refused = [](std::string_view text) {
    Difference difference = RefusalOfText(text);
    return std::to_string(difference.Line) + ": " + difference.What;
  };
  EXPECT_EQ(refused("each\nrow\nstart\n"), "1: expected the names of columns, got none");
  EXPECT_EQ(refused("each \"A\"\nrow 1\nkey {A}\n"), "1: expected the name of a column, got \"A\"");
  EXPECT_EQ(refused("each {A}\nrow 1\nkey {A}\n"), "1: expected the name of a column, got {A}");
  EXPECT_EQ(refused("each A\nkey {A}\n"), "1: expected rows below the columns, got none");
  EXPECT_EQ(refused("each A B\nrow 1\nkey {A}{B}\n"), "2: expected 2 values, got 1 value");
  EXPECT_EQ(refused("each A\nrow 1 2\nkey {A}\n"), "2: expected 1 value, got 2 values");
  EXPECT_EQ(refused("each A\nrow B=\"1\"\nkey {A}\n"), "2: expected a word or a text, got B=\"1\"");
  EXPECT_EQ(refused("each A A\nrow 1 2\nkey {A}\n"), "1: expected columns of different names, got two named A");
  EXPECT_EQ(refused("each A\nrow 1\nrow \"1\"\nkey {A}\n"), "1: expected rows of different names, got two named 1");
  EXPECT_EQ(refused("each A\nrow 1\nkey {B}\n"), "3: expected a column of the table in braces, got {B}");
  EXPECT_EQ(refused("each A\nrow 1\nkey {A\n"), "3: expected a column of the table in braces, got {A");
  EXPECT_EQ(refused("each A\nrow 1\nstart\n"), "1: expected {A} in a line below, got none");
  EXPECT_EQ(refused("each A B\nrow 1 2\nkey {A}\n"), "1: expected {B} in a line below, got none");
  EXPECT_EQ(refused("each A\nrow 1\neach A B\nrow 2 3\nkey {A}{B}\n"),
            "3: expected the first column and the rows of the table above, got others");
}

TEST(StoryTable, FirstColumnMayOnlyNameTheRows) {
  EXPECT_EQ(RefusalOfText("each NAME KEY\nrow first 1\nkey {KEY}\n").What, "");
}

TEST(StoryTable, BelongsAtTheHead) {
  EXPECT_EQ(RefusalOfText("start\neach A\nrow 1\n").What,
            "expected each and its rows above all other lines, got each A");
  EXPECT_EQ(RefusalOfText("row 1\n").Line, 1);
  EXPECT_EQ(RefusalOfText("each A\nrow 1\nkey {A}\nrow 2\n").Line, 4);
}

TEST(StoryTable, ChecksTheLinesOfEachRow) {
  Difference difference = RefusalOfText("each N\nrow 1\nrow x\ncount Titlepra {N}\n");
  EXPECT_EQ(difference.Line, 4);
  EXPECT_EQ(difference.Row, "x");
  EXPECT_EQ(difference.What, "expected arguments that \"count\" takes, got count Titlepra x");
}

}  // namespace
}  // namespace story
