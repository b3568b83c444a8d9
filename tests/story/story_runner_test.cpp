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
    std::optional<Difference> difference =
        PlayLines(ParseStories(text)[0].Lines, fresh.Path() / "folder", fresh.Path(), {});
    return difference ? std::to_string(difference->Line) + ": " + difference->What : "";
  }

  // What failed in a file of one story.
  std::optional<Difference> OnlyStory(std::string_view name) {
    std::vector<std::optional<Difference>> differences = PlayFile(fresh.Path() / name, {});
    EXPECT_EQ(differences.size(), 1u);
    return differences[0];
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
            "4: expected nothing more, got box warning \"\" \"Top of file encountered!\" with OK");
}

TEST_F(StoryRunnerTest, FailsOnAnEffectThatDoesNotCome) {
  EXPECT_EQ(Play("film 1 Title=\"Alien\"\nfilm 2 Title=\"Brazil\"\nstart\nclick cmdNext\nbeep\n"),
            "5: expected beep, got nothing");
}

TEST_F(StoryRunnerTest, FailsOnAnEffectWithoutItsAction) {
  EXPECT_EQ(Play("beep\nstart\n"), "1: expected an action above the effect, got beep");
}

TEST_F(StoryRunnerTest, FailsOnUnknownNames) {
  EXPECT_EQ(Play("start\nclick cmdNowhere\n"), "2: expected a control of the program, got cmdNowhere");
  EXPECT_EQ(Play("start\nsee txtNowhere \"\"\n"), "2: expected a control or a window of the program, got txtNowhere");
  EXPECT_EQ(Play("start\nsee txtTitle.Colour 1\n"), "2: expected a property of the stories, got Colour");
  EXPECT_EQ(Play("start\nsee txtTitle.Items\n"), "2: expected a control that has that property, got txtTitle.Items");
  EXPECT_EQ(Play("start\nsee state Nowhere 1\n"), "2: expected a variable of the run state, got Nowhere");
  EXPECT_EQ(Play("start\nsee focus txtNowhere\n"), "2: expected a control of the program, got txtNowhere");
  EXPECT_EQ(Play("start\npick txtTitle \"a\"\n"), "2: expected a list, got txtTitle");
  EXPECT_EQ(Play("start\nkey F13\n"), "2: expected a key or character, got F13");
  EXPECT_EQ(Play("start\nclose frmNowhere\n"), "2: expected a window of the program, got frmNowhere");
}

TEST_F(StoryRunnerTest, FailsOnWhatDiffersFromASight) {
  std::string start = "film 1 Title=\"Alien\"\nstart\n";
  EXPECT_EQ(Play(start + "see txtTitle \"Alien \"\n"), "3: expected \"Alien \", got \"Alien\"");
  EXPECT_EQ(Play(start + "see txtTitle.Visible no\n"), "3: expected no, got yes");
  EXPECT_EQ(Play(start + "see state CurrentRecNo \"1\"\n"), "3: expected \"1\", got 1");
  EXPECT_EQ(Play(start + "see focus txtTitle\n"), "3: expected the focus on txtTitle, got the focus on cmdSave");
  EXPECT_EQ(Play(start + "see film 1 Title \"Brazil\"\n"), "3: expected \"Brazil\", got \"Alien\"");
  EXPECT_EQ(Play(start + "see film 2 Title \"\"\n"), "3: expected record 2, got a file of 649 bytes");
  EXPECT_EQ(Play(start + "see length Recpra.Dat 648\n"), "3: expected 648 bytes, got 649 bytes");
  EXPECT_EQ(Play(start + "see missing Recpra.Dat\n"), "3: expected no file Recpra.Dat, got a file of that name");
  EXPECT_EQ(Play(start + "see pages 1\n"), "3: expected a document on paper, got none");
  EXPECT_EQ(Play(start + "see font \"Courier New\" 12\n"), "3: expected a document on paper, got none");
}

TEST_F(StoryRunnerTest, ComparesKeysAndWholeFiles) {
  std::string keys = "key DVDpra.Dat \"Alien\" 12\n";
  WriteBytes(fresh.Path() / "wanted", "Alien" + std::string(35, ' ') + "0000012\r\n");
  EXPECT_EQ(Play(keys + "see key DVDpra.Dat 1 \"Alien\" 12\nsee same DVDpra.Dat wanted\n"), "");
  EXPECT_EQ(Play(keys + "see key DVDpra.Dat 1 \"Alien\" 13\n"), "2: expected \"Alien\" 13, got \"Alien\" 12");
  WriteBytes(fresh.Path() / "wanted", "Aliens" + std::string(34, ' ') + "0000012\r\n");
  EXPECT_NE(Play(keys + "see same DVDpra.Dat wanted\n"), "");
}

TEST_F(StoryRunnerTest, ComparesFilesOnADrive) {
  std::string drive = "drive a disk\nfile Last \" 5\"\n";
  EXPECT_NE(Play(drive + "see drive a Last same\n"), "");
  EXPECT_NE(Play("file Last \" 5\"\nsee drive a Last same\n"), "");
}

TEST_F(StoryRunnerTest, WantsOneStartBeforeTheActions) {
  EXPECT_EQ(Play("click cmdNext\n"), "1: expected start above the first action, got click cmdNext");
  EXPECT_EQ(Play("start\nstart\n"), "2: expected a first start, got another one");
  EXPECT_EQ(Play("see txtTitle \"\"\n"), "1: expected the program to be running, got a line before its start");
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
  EXPECT_EQ(Play("remove Titlepra\nstart\n"), "2: expected nothing more, got stop \"File not found\" for Titlepra");
}

TEST_F(StoryRunnerTest, ReadsAStoryFromItsFile) {
  WriteBytes(fresh.Path() / "passes.story", "film 1 Title=\"Alien\"\nstart\nsee txtTitle \"Alien\"\n");
  WriteBytes(fresh.Path() / "fails.story", "film 1 Title=\"Alien\"\nstart\nsee txtTitle \"Brazil\"\n");
  WriteBytes(fresh.Path() / "empty.story", "# nothing\n");
  EXPECT_FALSE(OnlyStory("passes.story"));
  EXPECT_TRUE(OnlyStory("fails.story"));
  EXPECT_TRUE(OnlyStory("empty.story"));
  EXPECT_TRUE(OnlyStory("missing.story"));
}

TEST_F(StoryRunnerTest, PlaysEachRowInAFolderOfItsOwn) {
  WriteBytes(fresh.Path() / "rows.story",
             "each TITLE\nrow Alien\nrow \"The Thing\"\nrow Brazil\n"
             "see missing Made\nfile Made \"{TITLE}\"\nfilm 1 Title=\"Alien\"\nstart\nsee txtTitle \"{TITLE}\"\n");
  std::vector<std::optional<Difference>> differences = PlayFile(fresh.Path() / "rows.story", {});
  ASSERT_EQ(differences.size(), 3u);
  EXPECT_FALSE(differences[0]);
  ASSERT_TRUE(differences[1]);
  EXPECT_EQ(differences[1]->Row, "The Thing");
  EXPECT_EQ(differences[1]->Line, 9);
  EXPECT_EQ(differences[1]->What, "expected \"The Thing\", got \"Alien\"");
  ASSERT_TRUE(differences[2]);
  EXPECT_EQ(differences[2]->Row, "Brazil");
}

}  // namespace
}  // namespace story
