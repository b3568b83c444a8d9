// What a sort run shows: its label before each pass, its figures at each beep.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "app/program.h"
#include "runtime/clock.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/quiet_desk.h"
#include "tests/kit/source_tree.h"
#include "tests/story/set_up.h"

namespace screen {
namespace {

// Calls back at each repaint and beep; answers No.
class WatchedDesk final : public kit::QuietDesk {
 public:
  std::function<void()> OnPaint = [] {}, OnBeep = [] {};

  void Beep() override { OnBeep(); }
  void RepaintNow() override { OnPaint(); }

 private:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons) override {
    return forms::Answer::No;
  }
};

class SortRunTest : public testing::Test {
 protected:
  SortRunTest() {
    story::LayOutFolder(World, kit::DeliveredFolder());
    for (const char* line : {"film 1 Title=\"Solaris\" Format=\"D\"", "film 2 Title=\"Alien\" Format=\"L\"",
                             "film 3 Title=\"Ran\" Format=\"D\""}) {
      story::SetUp(World, story::ParseLine(line, 1), World.Folder);
    }
  }

  kit::FreshFolder Folder;
  story::World World{.Folder = Folder.Path()};
  runtime::RealDisk Disk{Folder.Path().string()};
  WatchedDesk Desk;
};

TEST_F(SortRunTest, PaintsItsLabelBeforeEachPass) {
  Program program(Desk, Disk);
  program.StartRecordScreen();
  std::vector<std::string> painted;
  std::vector<bool> key_file_there;
  Desk.OnPaint = [&] {
    painted.push_back(program.RecordScreen.lblSorting.Visible() ? program.RecordScreen.lblSorting.Caption() : "hidden");
    key_file_there.push_back(std::filesystem::exists(Folder.Path() / ".reelora/Titlepra.Dat.new") ||
                             std::filesystem::file_size(Folder.Path() / "Titlepra.Dat") > 0);
  };
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuSort); });
  EXPECT_EQ(painted, (std::vector<std::string>{"\n\rSorting Titles", "\n\rSorting DVD", "\n\rSorting Lasers",
                                               "\n\rSorting VHS"}));
  EXPECT_EQ(key_file_there, (std::vector<bool>{false, true, true, true}));
}

TEST_F(SortRunTest, ShowsCountAndStatusOfThePassesAtEachBeep) {
  Program program(Desk, Disk);
  program.StartRecordScreen();
  std::vector<std::string> figures;
  Desk.OnBeep = [&] {
    figures.push_back(program.RecordScreen.lblNumrec.Caption() + program.RecordScreen.lblRetcode.Caption());
  };
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuSort); });
  EXPECT_EQ(figures, (std::vector<std::string>{" 3 0", " 2 0", " 1 0", " 0 0"}));
  EXPECT_EQ(program.RecordScreen.lblNumrec.Caption(), "");
  EXPECT_EQ(program.RecordScreen.lblRetcode.Caption(), "");
}

TEST_F(SortRunTest, ShowsTheStatusOfPassesThatFailAndCarriesTheCountOn) {
  std::filesystem::remove(Folder.Path() / "UPPER.ALT");
  Program program(Desk, Disk);
  program.StartRecordScreen();
  std::vector<std::string> figures;
  Desk.OnBeep = [&] {
    figures.push_back(program.RecordScreen.lblNumrec.Caption() + program.RecordScreen.lblRetcode.Caption());
  };
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuSort); });
  EXPECT_EQ(figures, (std::vector<std::string>{" 0 3", " 0 3", " 0 3", " 0 3"}));
  EXPECT_FALSE(program.Stopped());
}

// A failed pass writes the count of the pass before it.
TEST_F(SortRunTest, WritesTheCountOfThePassBeforeWhereOneFails) {
  Program program(Desk, Disk);
  program.StartRecordScreen();
  int passes = 0;
  Desk.OnPaint = [&] {
    if (++passes == 2) std::filesystem::remove(Folder.Path() / "UPPER.ALT");
  };
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuSort); });
  for (const char* count : {"Titlepra", "DVDpra", "Laserpra", "VHSpra"})
    EXPECT_EQ(story::ReadBytes(Folder.Path() / count), " 3\r\n") << count;
  EXPECT_EQ(std::filesystem::file_size(Folder.Path() / "Titlepra.Dat"), 3u * 49);
  EXPECT_EQ(std::filesystem::file_size(Folder.Path() / "DVDpra.Dat"), 0u);
}

TEST_F(SortRunTest, SetsTheHelpTopicOfTheButtonAndNoneOfTheMenu) {
  Program program(Desk, Disk);
  program.StartRecordScreen();
  std::vector<int> topics;
  Desk.OnBeep = [&] { topics.push_back(program.RecordScreen.HelpContext); };
  program.RecordScreen.HelpContext = 1;
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuSort); });
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.cmdSort); });
  EXPECT_EQ(topics, (std::vector<int>{1, 1, 1, 1, 170, 170, 170, 170}));
}

// If the box and the setting differ, the reminder follows the setting.
TEST_F(SortRunTest, RemindsOfSavingWhereTheBoxSaysOnAndTheSettingsSayNo) {
  Program program(Desk, Disk);
  program.StartRecordScreen();
  frmPage1& page = program.RecordScreen;
  page.txtAutoSave.SetText("Auto Save On");
  page.NewMode = 1;
  program.Deliver([&] { page.txtRatings_LostFocus(); });
  EXPECT_EQ(page.AutoSaveSetting.Value(), "NO");
  EXPECT_EQ(page.lblSorting.Caption(), std::string(60, ' ') + "You Must Save And Sort Your Work!");
  EXPECT_EQ(page.LastEntryRecNo.Value(), "1");
}

// The open key file gives the new keys under its old number.
TEST_F(SortRunTest, LeavesTheNewKeysOfTapesOpen) {
  story::SetUp(World, story::ParseLine("film 2 Title=\"Alien\" Format=\"V\"", 1), World.Folder);
  Program program(Desk, Disk);
  program.StartRecordScreen();
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuSort); });
  std::string key(49, '?');
  ASSERT_TRUE(program.Files.IsOpen(KeyFileNo));
  ASSERT_TRUE(program.Files.Get(KeyFileNo, 1, key.data()));
  EXPECT_EQ(key, "Alien" + std::string(35, ' ') + "0000002\r\n");
  EXPECT_FALSE(program.Files.Get(KeyFileNo, 2, key.data()));
}

TEST_F(SortRunTest, BuildsTheStatementOfTheLastPass) {
  Program program(Desk, Disk);
  program.StartRecordScreen();
  std::vector<std::string> statements;
  Desk.OnBeep = [&] { statements.push_back(program.RecordScreen.SortStatement.Value()); };
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuSort); });
  std::string head = "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(";
  EXPECT_EQ(statements, (std::vector<std::string>{
                            head + "1,40,C,GT,\"000000\") Record(649)", head + "266,1,C,EQ,\"D\") Record(649) ",
                            head + "266,1,C,EQ,\"L\") Record(649) ", head + "266,1,C,EQ,\"V\") Record(649) "}));
}

}  // namespace
}  // namespace screen
