// The copy window on disks in memory: the exact texts of its questions, and full disks.
#include "filecopy/frmCopy.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "app/program.h"
#include "tests/kit/answering_desk.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"

namespace {

using kit::Folder;
using kit::MemoryDisk;

constexpr std::string_view NoDisk =
    "There is no disk in floppy drive, or wrong drive was selected. Insert disk and click ok.";

class TimedDisk final : public kit::PassingDisk {
 public:
  TimedDisk(runtime::Disk& below, std::int64_t modified) : PassingDisk(below), modified_(modified) {}
  int Modified(int, runtime::FileTime& time) override {
    time = {modified_, 0};
    return 0;
  }

 private:
  std::int64_t modified_;
};

std::int64_t Moment(std::chrono::year_month_day date, int hour, int minute) {
  using namespace std::chrono;
  return (sys_days(date) + hours(hour) + minutes(minute)).time_since_epoch() / seconds(1);
}

// The program with its record screen shown and a disk in drive a.
struct CopyWindow : testing::Test {
  CopyWindow() {
    setenv("TZ", "UTC", 1);
    tzset();
    Desk.Drives = {{'a', "floppy"}, {'b', std::nullopt}, {'c', "hard"}};
    Running.Copy.DiskIn = [this](const std::string& folder) -> std::unique_ptr<runtime::Disk> {
      EXPECT_EQ(folder, "floppy");
      return std::make_unique<TimedDisk>(*OnFloppy, FloppyTime);
    };
    Running.StartRecordScreen();
  }
  void OpenAndChoose(std::string_view file) {
    Running.Deliver([&] { Running.RecordScreen.UserClick(Running.RecordScreen.mnuCopy); });
    Pick(Running.Copy.File1, file);
  }
  void Pick(forms::ListBox& list, std::string_view item) {
    const auto& items = list.Items();
    auto index = std::find(items.begin(), items.end(), item) - items.begin();
    ASSERT_LT(index, std::ssize(items)) << item;
    Running.Deliver([&] { Running.Copy.UserPick(list, static_cast<int>(index)); });
  }

  std::int64_t FloppyTime = Moment(std::chrono::year(1999) / 12 / 31, 23, 59);
  MemoryDisk Hard{kit::FolderOfFilms(2)};
  TimedDisk HardWithTimes{Hard, Moment(std::chrono::year(2026) / 11 / 21, 5, 30)};
  MemoryDisk Floppy{Folder()};
  runtime::Disk* OnFloppy = &Floppy;
  kit::AnsweringDesk Desk;
  Program Running{Desk, HardWithTimes};
};

TEST_F(CopyWindow, TheQuestionToReplaceShowsBothFiles) {
  MemoryDisk with_old(Folder{{"Recpra.Dat", "123"}});
  OnFloppy = &with_old;
  OpenAndChoose("Recpra.Dat");
  Pick(Running.Copy.Drive1, "a:");
  ASSERT_EQ(Desk.Boxes.size(), 1u);
  EXPECT_EQ(
      Desk.Boxes[0],
      "               REPLACE CURRENT FILE ON DRIVE \"A:\"\r\n\r\n"
      "A:\\RECPRA.DAT was created or last modified on Friday, December 31, 1999 at 11:59 PM. Its size is 3 bytes. "
      " To replace this file with the one below, click \"Yes\" or quit click \"No\".\r\n\r\n"
      "    WITH CURRENT FILE ON \"HARD DISK\"\r\n\r\n"
      "RECPRA.DAT was created or last modified on Saturday, November 21, 2026 at 5:30 AM. Its size is 1298 bytes. ");
  EXPECT_EQ(with_old.Content().at("Recpra.Dat"), Hard.Content().at("Recpra.Dat"));
  EXPECT_FALSE(Running.Copy.Visible());
}

TEST_F(CopyWindow, OnTheOwnDriveTheNameStandsAloneAndNothingIsWritten) {
  Folder before = Hard.Content();
  OpenAndChoose("Recpra.Dat");
  Pick(Running.Copy.Drive1, "c:");
  ASSERT_EQ(Desk.Boxes.size(), 1u);
  EXPECT_NE(Desk.Boxes[0].find("ON DRIVE \"C:\"\r\n\r\nRECPRA.DAT was"), std::string::npos) << Desk.Boxes[0];
  EXPECT_EQ(Hard.Content(), before);
  EXPECT_EQ(Desk.Copies, std::vector<std::string>());
}

TEST_F(CopyWindow, ADriveWithoutItsColonIsTheSameDrive) {
  OpenAndChoose("Recpra.Dat");
  Running.Copy.Drive1.Add("a");
  Pick(Running.Copy.Drive1, "a");
  ASSERT_EQ(Desk.Boxes.size(), 1u);
  EXPECT_EQ(Desk.Boxes[0], "Do you want to copy Recpra.Dat to Drive A hit Yes, or No ");
  EXPECT_EQ(Running.Copy.DriveWord, "A:");
  EXPECT_EQ(Running.Copy.LetterWord, "A");
  EXPECT_EQ(Running.Copy.TargetPath, "A:\\Recpra.Dat");
  EXPECT_TRUE(Floppy.Content().contains("Recpra.Dat"));
  EXPECT_EQ(Desk.Copies, std::vector<std::string>{"Recpra.Dat a 1298"});
}

TEST_F(CopyWindow, AFullDiskLeavesTheOldFileAndAnotherTry) {
  MemoryDisk below(Folder{{"Recpra.Dat", "old"}});
  kit::FaultyDisk full(below, {kit::Fault::Full, 4, true});
  OnFloppy = &full;
  OpenAndChoose("Recpra.Dat");
  Pick(Running.Copy.Drive1, "a:");
  ASSERT_EQ(Desk.Boxes.size(), 2u);
  EXPECT_EQ(Desk.Boxes[1], NoDisk);
  EXPECT_EQ(Desk.Copies, std::vector<std::string>());
  EXPECT_TRUE(Running.Copy.lblCopy7.Visible());
  EXPECT_TRUE(Running.Copy.Visible());
  EXPECT_EQ(below.Content().at("Recpra.Dat"), "old");
  EXPECT_FALSE(Running.Files.IsOpen(1));
  EXPECT_FALSE(Running.Stopped());

  OnFloppy = &Floppy;
  Pick(Running.Copy.Drive1, "a:");
  EXPECT_EQ(Floppy.Content().at("Recpra.Dat"), Hard.Content().at("Recpra.Dat"));
  EXPECT_FALSE(Running.Copy.Visible());
  EXPECT_TRUE(Running.Files.IsOpen(1));
}

TEST_F(CopyWindow, ADiskThatCannotBeReadGivesTheWarning) {
  kit::FaultyDisk broken(Floppy, {kit::Fault::Error, 0, true});
  OnFloppy = &broken;
  OpenAndChoose("Recpra.Dat");
  Pick(Running.Copy.Drive1, "a:");
  EXPECT_EQ(Desk.Boxes, std::vector<std::string>{std::string(NoDisk)});
}

TEST_F(CopyWindow, TheMasterFileIsClosedWhileTheWindowIsThere) {
  EXPECT_TRUE(Running.Files.IsOpen(1));
  OpenAndChoose("Recpra.Dat");
  EXPECT_FALSE(Running.Files.IsOpen(1));
  Running.Deliver([&] { Running.Copy.UserClose(); });
  EXPECT_TRUE(Running.Files.IsOpen(1));
  EXPECT_FALSE(Running.Ended());
}

TEST_F(CopyWindow, AFileChosenWithTheFileListSetsDriveA) {
  OpenAndChoose("Recpra.Dat");
  EXPECT_EQ(Running.Copy.LetterWord, "A");
  EXPECT_TRUE(Running.Copy.Drive1.Enabled());
}

TEST(CopyWindowFolders, AFolderThatChangesTakesItsFileListAlong) {
  kit::FreshFolder folder;
  runtime::RealDisk disk(folder.Path().string());
  for (const auto& [name, bytes] : kit::FolderOfFilms(1)) {
    std::string parent = kit::FolderOf(name);
    if (!parent.empty()) disk.MakeFolder(parent);
    int handle = disk.Open(name, runtime::Disk::Mode::Create);
    disk.WriteAt(handle, bytes.data(), bytes.size(), 0);
    disk.Close(handle);
  }
  ASSERT_EQ(disk.MakeFolder("older"), 0);
  ASSERT_EQ(disk.MakeFolder("folder.dat"), 0);
  disk.Close(disk.Open("older/Kept.dat", runtime::Disk::Mode::Create));
  kit::AnsweringDesk desk;
  Program program(desk, disk);
  program.StartRecordScreen();
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuCopy); });
  frmCopy& window = program.Copy;
  EXPECT_EQ(window.File1.Items(), std::vector<std::string>{"Recpra.Dat"});
  EXPECT_EQ(window.Dir1.Items(), (std::vector<std::string>{"folder.dat", "older"}));

  window.Dir1.Select(1);
  window.Dir1.DblClick();
  EXPECT_EQ(window.File1.Items(), std::vector<std::string>{"Kept.dat"});
  EXPECT_EQ(window.File1.OnDisk("Kept.dat"), "older/Kept.dat");
  window.Dir2.SetPath("older");
  EXPECT_EQ(window.File2.Items(), std::vector<std::string>{"Kept.dat"});
  window.Dir1.Select(0);
  window.Dir1.DblClick();
  EXPECT_EQ(window.File1.Items(), std::vector<std::string>{"Recpra.Dat"});
}

}  // namespace
