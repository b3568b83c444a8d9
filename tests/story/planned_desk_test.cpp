// The planned desk: what it answers, and what it takes for a difference.
#include "tests/story/planned_desk.h"

#include <gtest/gtest.h>

#include "runtime/failure.h"
#include "runtime/print_job.h"

namespace story {
namespace {

using forms::Answer;
using forms::Buttons;
using forms::Icon;

class PlannedDeskTest : public testing::Test {
 protected:
  // An action on line 10, its effects on the lines below it.
  void Plan(const std::vector<std::string>& effects) {
    std::vector<Line> lines;
    lines.reserve(effects.size());
    for (const std::string& effect : effects) lines.push_back(ParseLine(effect, static_cast<int>(11 + lines.size())));
    desk.Plan(10, std::move(lines));
  }
  // "LINE: what differed" once the action is over, "" where nothing did.
  std::string Outcome() {
    desk.Finish();
    return desk.First() ? std::to_string(desk.First()->Line) + ": " + desk.First()->What : "";
  }

  World world{"."};
  PlannedDesk desk{world};
};

TEST_F(PlannedDeskTest, AnswersBoxesAsPlanned) {
  Plan({"box warning \"\" \"Top!\" OK", "box question \"T\" \"Sure?\" Yes", "box none \"T\" \"Sure?\" No"});
  EXPECT_EQ(desk.MessageBox(Icon::Warning, "", "Top!"), Answer::Ok);
  EXPECT_EQ(desk.MessageBox(Icon::Question, "T", "Sure?", Buttons::YesNo), Answer::Yes);
  EXPECT_EQ(desk.MessageBox(Icon::None, "T", "Sure?", Buttons::YesNo), Answer::No);
  EXPECT_EQ(Outcome(), "");
}

TEST_F(PlannedDeskTest, TakesAnyTextAndTitleWhereThePlanDoes) {
  Plan({"box none ANY \"Saved\" OK", "box none \"T\" ANY OK"});
  desk.MessageBox(Icon::None, "whatever", "Saved");
  desk.MessageBox(Icon::None, "T", "whatever");
  EXPECT_EQ(Outcome(), "");
}

TEST_F(PlannedDeskTest, NotesABoxThatIsNotPlanned) {
  Plan({});
  EXPECT_EQ(desk.MessageBox(Icon::Question, "T", "Sure?", Buttons::YesNo), Answer::No);
  EXPECT_EQ(Outcome(), "10: expected nothing more, got box question \"T\" \"Sure?\" with Yes and No");
}

TEST_F(PlannedDeskTest, NotesAnEffectThatDoesNotCome) {
  Plan({"beep", "box none \"\" \"text\" OK"});
  desk.Beep();
  EXPECT_EQ(Outcome(), "12: expected box none \"\" \"text\" OK, got nothing");
}

TEST_F(PlannedDeskTest, NotesEffectsInAnotherOrder) {
  Plan({"beep", "box none \"\" \"text\" OK"});
  desk.MessageBox(Icon::None, "", "text");
  desk.Beep();
  EXPECT_EQ(Outcome(), "11: expected beep, got box none \"\" \"text\" with OK");
}

TEST_F(PlannedDeskTest, ComparesIconTitleAndTextExactly) {
  for (const char* planned :
       {"box warning \"T\" \"text\" OK", "box none \"t\" \"text\" OK", "box none \"T\" \"text \" OK"}) {
    PlannedDesk fresh(world);
    fresh.Plan(1, {ParseLine(planned, 2)});
    fresh.MessageBox(Icon::None, "T", "text");
    EXPECT_TRUE(fresh.First()) << planned;
  }
}

TEST_F(PlannedDeskTest, NotesAButtonThatTheBoxDoesNotHave) {
  Plan({"box none \"\" \"text\" Yes"});
  EXPECT_EQ(desk.MessageBox(Icon::None, "", "text"), Answer::Ok);
  EXPECT_EQ(Outcome(), "11: expected the button Yes, got OK alone");
}

TEST_F(PlannedDeskTest, KeepsTheFirstDifferenceAndAnswersHarmlesslyAfterIt) {
  Plan({"beep", "input \"\" \"Which?\" \"5\"", "colour 255"});
  EXPECT_EQ(desk.InputBox("", "Which?"), "");
  EXPECT_EQ(desk.ColourDialog(0), std::nullopt);
  desk.Beep();
  EXPECT_EQ(Outcome(), "11: expected beep, got input \"\" \"Which?\"");
}

TEST_F(PlannedDeskTest, AnswersInputBoxes) {
  Plan({"input \"T\" \"Which?\" \"abc\"", "input \"T\" \"Which?\" cancel"});
  EXPECT_EQ(desk.InputBox("T", "Which?"), "abc");
  EXPECT_EQ(desk.InputBox("T", "Which?"), "");
  EXPECT_EQ(Outcome(), "");
}

TEST_F(PlannedDeskTest, GivesColours) {
  Plan({"colour 16711680", "colour cancel"});
  EXPECT_EQ(desk.ColourDialog(0), 16711680u);
  EXPECT_EQ(desk.ColourDialog(0), std::nullopt);
  EXPECT_EQ(Outcome(), "");
}

TEST_F(PlannedDeskTest, TakesHelpPrinterDialogEndAndStop) {
  Plan({"help contents", "help 150", "printer-setup", "end"});
  desk.Help(0);
  desk.Help(150);
  desk.PrinterDialog();
  desk.Closed();
  EXPECT_EQ(Outcome(), "");
}

TEST_F(PlannedDeskTest, NamesTheFileOfAStopThatIsNotPlanned) {
  Plan({"stop \"Overflow\""});
  desk.FailureReport({runtime::FileNotFound, "Last"});
  EXPECT_EQ(Outcome(), "11: expected stop \"Overflow\", got stop \"File not found\" for Last");
}

TEST_F(PlannedDeskTest, KeepsTheLastDocument) {
  runtime::PrintJob job;
  job.Pages.resize(2);
  Plan({"printed 2"});
  desk.Print(job);
  EXPECT_EQ(Outcome(), "");
  ASSERT_TRUE(world.Document);
  EXPECT_EQ(world.Document->Pages.size(), 2u);
}

TEST_F(PlannedDeskTest, NotesAnotherNumberOfPages) {
  Plan({"printed 2"});
  desk.Print({});
  EXPECT_EQ(Outcome(), "11: expected printed 2, got printed 0");
}

TEST_F(PlannedDeskTest, ShowsTheDrivesAndTheClockOfTheStory) {
  world.Drives = {{'b', std::nullopt}, {'a', "/disk"}};
  world.Clock = std::chrono::local_seconds(std::chrono::seconds(60));
  EXPECT_EQ(desk.DriveLetters(), "ab");
  EXPECT_EQ(desk.DriveFolder('A'), "/disk");
  EXPECT_EQ(desk.DriveFolder('b'), std::nullopt);
  EXPECT_EQ(desk.DriveFolder('z'), std::nullopt);
  EXPECT_EQ(desk.Now(), *world.Clock);
}

}  // namespace
}  // namespace story
