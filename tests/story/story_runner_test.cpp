// The runner on the program itself: what lets a story pass, and under which line it fails.
#include "tests/story/story_runner.h"

#include <gtest/gtest.h>

#include "tests/kit/fresh_folder.h"

namespace story {
namespace {

namespace fs = std::filesystem;

class StoryRunnerTest : public testing::Test {
 protected:
  // "LINE: what differed", "" where the story passed.
  std::string Play(std::string_view text) {
    fs::remove_all(fresh.Path() / "folder");
    fs::create_directory(fresh.Path() / "folder");
    std::optional<Difference> difference = PlayLines(ParseStory(text), fresh.Path() / "folder", fresh.Path(), {});
    return difference ? std::to_string(difference->Line) + ": " + difference->What : "";
  }

  kit::FreshFolder fresh;
};

TEST_F(StoryRunnerTest, PlaysAStory) {
  EXPECT_EQ(Play("film 1 Title=\"Alien\" Format=\"D\"\n"
                 "start\n"
                 "see txtTitle \"Alien\"\n"
                 "see txtFormat \"DVD\"\n"
                 "see state CurrentRecNo 1\n"
                 "see focus cmdSave\n"
                 "see txtTitle.Visible yes\n"
                 "see txtTitle.FontSize 12\n"
                 "see txtTitle.Alignment centre\n"
                 "see txtTitle.ForeColor 16711680\n"
                 "see List1.Items\n"
                 "see List1.ListIndex -1\n"
                 "see optNotesoff.Value yes\n"
                 "see frmPage1.Visible yes\n"
                 "see frmPage1.BackColor 16711680\n"
                 "see length Recpra.Dat 649\n"
                 "see missing Nothing\n"
                 "see film 1 Title \"Alien\"\n"
                 "see file Titlepra \" 0\\r\\n\"\n"
                 "see cmdNext.Caption \"&Next\"\n"
                 "see cmdNext \"&Next\"\n"),
            "");
}

TEST_F(StoryRunnerTest, FailsOnABoxThatIsNotPlanned) {
  EXPECT_EQ(Play("film 1 Title=\"Alien\"\nfilm 2 Title=\"Brazil\"\nstart\nclick cmdPrevious\nbeep\n"),
            "4: expected nothing more, came box warning \"\" \"Top of file encountered!\" with OK");
}

TEST_F(StoryRunnerTest, FailsOnAnEffectThatDoesNotCome) {
  EXPECT_EQ(Play("film 1 Title=\"Alien\"\nfilm 2 Title=\"Brazil\"\nstart\nclick cmdNext\nbeep\n"),
            "5: expected beep, came nothing");
}

TEST_F(StoryRunnerTest, FailsOnAnEffectWithoutItsAction) {
  EXPECT_EQ(Play("beep\nstart\n"), "1: expected an action above the effect, came beep");
}

TEST_F(StoryRunnerTest, FailsOnUnknownNames) {
  EXPECT_EQ(Play("start\nclick cmdNowhere\n"), "2: expected a control of the program, came cmdNowhere");
  EXPECT_EQ(Play("start\nsee txtNowhere \"\"\n"), "2: expected a control or a window of the program, came txtNowhere");
  EXPECT_EQ(Play("start\nsee txtTitle.Colour 1\n"), "2: expected a property of the stories, came Colour");
  EXPECT_EQ(Play("start\nsee txtTitle.Items\n"), "2: expected a control that has that property, came txtTitle.Items");
  EXPECT_EQ(Play("start\nsee state Nowhere 1\n"), "2: expected a variable of the run state, came Nowhere");
  EXPECT_EQ(Play("start\nsee focus txtNowhere\n"), "2: expected a control of the program, came txtNowhere");
  EXPECT_EQ(Play("start\npick txtTitle \"a\"\n"), "2: expected a list, came txtTitle");
  EXPECT_EQ(Play("start\nkey F13\n"), "2: expected a key or character, came F13");
  EXPECT_EQ(Play("start\nclose frmNowhere\n"), "2: expected a window of the program, came frmNowhere");
}

TEST_F(StoryRunnerTest, FailsOnWhatDiffersFromASight) {
  std::string start = "film 1 Title=\"Alien\"\nstart\n";
  EXPECT_EQ(Play(start + "see txtTitle \"Alien \"\n"), "3: expected \"Alien \", came \"Alien\"");
  EXPECT_EQ(Play(start + "see txtTitle.Visible no\n"), "3: expected no, came yes");
  EXPECT_EQ(Play(start + "see state CurrentRecNo \"1\"\n"), "3: expected \"1\", came 1");
  EXPECT_EQ(Play(start + "see focus txtTitle\n"), "3: expected the focus on txtTitle, came the focus on cmdSave");
  EXPECT_EQ(Play(start + "see film 1 Title \"Brazil\"\n"), "3: expected \"Brazil\", came \"Alien\"");
  EXPECT_EQ(Play(start + "see film 2 Title \"\"\n"), "3: expected record 2, came a file of 649 bytes");
  EXPECT_EQ(Play(start + "see length Recpra.Dat 648\n"), "3: expected 648 bytes, came 649 bytes");
  EXPECT_EQ(Play(start + "see missing Recpra.Dat\n"), "3: expected no file Recpra.Dat, came a file of that name");
  EXPECT_EQ(Play(start + "see pages 1\n"), "3: expected a document on paper, came none");
}

TEST_F(StoryRunnerTest, ComparesKeysAndWholeFiles) {
  std::string keys = "key DVDpra.Dat \"Alien\" 12\n";
  WriteBytes(fresh.Path() / "wanted", "Alien" + std::string(35, ' ') + "0000012\r\n");
  EXPECT_EQ(Play(keys + "see key DVDpra.Dat 1 \"Alien\" 12\nsee same DVDpra.Dat wanted\n"), "");
  EXPECT_EQ(Play(keys + "see key DVDpra.Dat 1 \"Alien\" 13\n"), "2: expected \"Alien\" 13, came \"Alien\" 12");
  WriteBytes(fresh.Path() / "wanted", "Aliens" + std::string(34, ' ') + "0000012\r\n");
  EXPECT_NE(Play(keys + "see same DVDpra.Dat wanted\n"), "");
}

TEST_F(StoryRunnerTest, ComparesFilesOnADrive) {
  std::string drive = "drive a disk\nfile Last \" 5\"\n";
  EXPECT_NE(Play(drive + "see drive a Last same\n"), "");
  EXPECT_NE(Play("file Last \" 5\"\nsee drive a Last same\n"), "");
}

TEST_F(StoryRunnerTest, WantsOneStartBeforeTheActions) {
  EXPECT_EQ(Play("click cmdNext\n"), "1: expected start above the first action, came click cmdNext");
  EXPECT_EQ(Play("start\nstart\n"), "2: expected a first start, came another one");
  EXPECT_EQ(Play("see txtTitle \"\"\n"), "1: expected the program to be running, came a line before its start");
}

TEST_F(StoryRunnerTest, RestartsOnTheSameFolder) {
  EXPECT_EQ(Play("film 1 Title=\"Alien\"\nfilm 2 Title=\"Brazil\"\nstart\nclick cmdNext\nsee txtTitle \"Brazil\"\n"
                 "restart\nsee txtTitle \"Alien\"\nsee state CurrentRecNo 1\n"),
            "");
}

TEST_F(StoryRunnerTest, LeavesHiddenAndDisabledControlsAlone) {
  EXPECT_EQ(Play("film 1 Title=\"Alien\"\nfilm 2 Title=\"Brazil\"\nstart\nsee cmdNext20.Visible no\nclick cmdNext20\n"
                 "see txtTitle \"Alien\"\n"),
            "");
}

TEST_F(StoryRunnerTest, StopsOnAFailureByItsName) {
  EXPECT_EQ(Play("remove Titlepra\nstart\nstop \"File not found\"\n"), "");
  EXPECT_EQ(Play("remove Titlepra\nstart\n"), "2: expected nothing more, came stop \"File not found\" for Titlepra");
}

TEST_F(StoryRunnerTest, ReadsAStoryFromItsFile) {
  WriteBytes(fresh.Path() / "passes.story", "film 1 Title=\"Alien\"\nstart\nsee txtTitle \"Alien\"\n");
  WriteBytes(fresh.Path() / "fails.story", "film 1 Title=\"Alien\"\nstart\nsee txtTitle \"Brazil\"\n");
  WriteBytes(fresh.Path() / "empty.story", "# nothing\n");
  EXPECT_FALSE(PlayStory(fresh.Path() / "passes.story", {}));
  EXPECT_TRUE(PlayStory(fresh.Path() / "fails.story", {}));
  EXPECT_TRUE(PlayStory(fresh.Path() / "empty.story", {}));
  EXPECT_TRUE(PlayStory(fresh.Path() / "missing.story", {}));
}

}  // namespace
}  // namespace story
