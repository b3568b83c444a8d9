// Reports beyond the reach of stories: a failing printer, the screen meanwhile, the clock of each page, and key files
// that never end.
#include <gtest/gtest.h>

#include <map>

#include "app/program.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/quiet_desk.h"
#include "tests/kit/source_tree.h"
#include "tests/story/set_up.h"

namespace {

namespace fs = std::filesystem;

// Each look at the clock is a second later.
class ReportDesk final : public kit::QuietDesk {
 public:
  bool PrinterFails = false;
  std::optional<runtime::PrintJob> Document;
  std::vector<std::string> Boxes;
  std::vector<std::string> Painted;
  std::function<std::string()> Seen = [] { return std::string(); };

  void Print(const runtime::PrintJob& job) override {
    if (PrinterFails) throw runtime::Failure{runtime::PrinterError, ""};
    Document = job;
  }
  std::chrono::local_seconds Now() override { return now_ += std::chrono::seconds(1); }
  void Repaint() override { Painted.push_back(Seen()); }

 private:
  forms::Answer AskMessageBox(forms::Icon icon, std::string_view title, std::string_view text,
                              forms::Buttons buttons) override {
    Boxes.emplace_back(text);
    return QuietDesk::AskMessageBox(icon, title, text, buttons);
  }

  std::chrono::local_seconds now_;
};

class ReportTest : public testing::Test {
 protected:
  ReportTest() : world{fresh.Path()} {
    desk.NextAnswer = "Smith";
    story::LayOutFolder(world, kit::DeliveredFolder());
  }

  void SetUpLine(std::string_view line) { story::SetUp(world, story::ParseLine(line, 1), fresh.Path()); }
  void Start() {
    disk.emplace(fresh.Path());
    program.emplace(desk, *disk);
    program->StartRecordScreen();
  }
  void Click(forms::MenuItem screen::PageControls::*item) {
    program->Deliver([&] { program->RecordScreen.UserClick(program->RecordScreen.*item); });
  }
  std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(fresh.Path()))
      if (entry.is_regular_file()) files[entry.path()] = story::ReadBytes(entry.path()).value_or("(unread)");
    return files;
  }

  kit::FreshFolder fresh;
  story::World world;
  ReportDesk desk;
  std::optional<runtime::RealDisk> disk;
  std::optional<Program> program;
};

TEST_F(ReportTest, APrinterThatFailsStopsTheProgramAndTouchesNothing) {
  SetUpLine("films 1 3 Title=\"Film #\" Director=\"Ann Smith\" Star1=\"Ann Smith\" Format=\"D\" Genre=\"AA\"");
  SetUpLine("sorted");
  desk.PrinterFails = true;
  for (auto item :
       {&frmPage1::mnuAll, &frmPage1::mnuShort, &frmPage1::mnuDVD, &frmPage1::mnuDirector, &frmPage1::mnuStars}) {
    Start();
    auto before = Files();
    desk.Reported = "";
    desk.Boxes.clear();
    Click(item);
    EXPECT_EQ(desk.Reported, "Printer error");
    EXPECT_LE(desk.Boxes.size(), 1u) << "the closing box must not come";
    EXPECT_EQ(Files(), before);
    EXPECT_TRUE(program->Ended());
  }
}

TEST_F(ReportTest, TheScreenFlipsThroughTheFilms) {
  SetUpLine("films 1 3 Title=\"Film #\" Format=\"D\" Genre=\"AA\"");
  SetUpLine("sorted");
  Start();
  desk.Seen = [this] { return program->RecordScreen.txtTitle.Text() + ": " + program->RecordScreen.lblHead.Caption(); };
  desk.Painted.clear();
  Click(&frmPage1::mnuShort);
  std::string wait = ": Please wait print spooler is loading files.";
  ASSERT_GE(desk.Painted.size(), 3u);
  desk.Painted.resize(3);
  EXPECT_EQ(desk.Painted, std::vector<std::string>({"Film 1" + wait, "Film 2" + wait, "Film 3" + wait}));
}

TEST_F(ReportTest, EveryPageHasItsOwnTime) {
  SetUpLine("films 1 49 Title=\"Film ##\" Format=\"D\"");
  SetUpLine("sorted");
  Start();
  Click(&frmPage1::mnuShort);
  ASSERT_TRUE(desk.Document);
  ASSERT_EQ(desk.Document->Pages.size(), 2u);
  EXPECT_EQ(desk.Document->Pages[0].Lines[1].PlainText(), "    Reelora Prima Short Print List    01-01-1970  00:00:01");
  EXPECT_EQ(desk.Document->Pages[1].Lines[1].PlainText(), "    Reelora Prima Short Print List    01-01-1970  00:00:02");
}

TEST_F(ReportTest, EveryLineIsBoldAndTheHeadsAndNotesAreUnderlined) {
  SetUpLine("film 1 Title=\"Alpha\" Format=\"D\"");
  SetUpLine("sorted");
  Start();
  for (auto item : {&frmPage1::mnuAll, &frmPage1::mnuShort}) {
    Click(item);
    ASSERT_TRUE(desk.Document);
    EXPECT_EQ(desk.Document->FontName, "Courier New");
    EXPECT_EQ(desk.Document->FontSize, 12);
    int underlined = 0;
    for (const runtime::PrintedLine& line : desk.Document->Pages.at(0).Lines) {
      EXPECT_TRUE(line.Bold || line.Text.empty()) << line.Text;
      underlined += line.Underline;
    }
    EXPECT_EQ(underlined, 1);
  }
}

TEST_F(ReportTest, TheNotesAreUnderlinedOverTheirWholeWidth) {
  SetUpLine("film 1 Title=\"Alpha\" Format=\"D\" Awards=\"Short\"");
  SetUpLine("sorted");
  Start();
  Click(&frmPage1::mnuAll);
  ASSERT_TRUE(desk.Document);
  const runtime::PrintedLine& notes = desk.Document->Pages.at(0).Lines.at(9);
  EXPECT_TRUE(notes.Underline);
  EXPECT_EQ(notes.From, 3);
  EXPECT_EQ(notes.Text, "Notes/Awards: Short" + std::string(55, ' ') + ":  ");
}

TEST_F(ReportTest, APartOfAKeyAtTheEndLeavesTheReportWithoutAnEnd) {
  SetUpLine("film 1 Title=\"Alpha\" Format=\"D\"");
  SetUpLine("sorted");
  fs::resize_file(fresh.Path() / "Titlepra.Dat", 49);
  story::WriteBytes(fresh.Path() / "Titlepra.Dat",
                    story::ReadBytes(fresh.Path() / "Titlepra.Dat").value() + std::string(40, 'x') + "0000001");
  Start();
  Click(&frmPage1::mnuShort);
  EXPECT_EQ(desk.Reported, "Overflow");
  EXPECT_FALSE(desk.Document);
}

TEST_F(ReportTest, ThePlaceInTheKeysHasNoRoomFor32767Films) {
  SetUpLine("film 1 Title=\"Alpha\" Format=\"D\"");
  SetUpLine("count Titlepra 32767");
  std::string key = runtime::Fixed("Alpha", 40) + "0000001\r\n";
  std::string keys;
  for (int number = 0; number < 32766; ++number) keys += key;
  story::WriteBytes(fresh.Path() / "Titlepra.Dat", keys);
  Start();
  Click(&frmPage1::mnuShort);
  ASSERT_TRUE(desk.Document) << "32,766 fit";
  EXPECT_EQ(desk.Document->Pages.back().Lines.back().PlainText(), std::string(34, ' ') + "Page  656");
  desk.Document.reset();
  story::WriteBytes(fresh.Path() / "Titlepra.Dat", keys + key);
  Start();
  Click(&frmPage1::mnuShort);
  EXPECT_EQ(desk.Reported, "Overflow");
  EXPECT_FALSE(desk.Document);
}

}  // namespace
