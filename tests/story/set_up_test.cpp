// The set-up lines: what they leave in the folder, byte for byte.
#include "tests/story/set_up.h"

#include <gtest/gtest.h>

#include "runtime/clock.h"
#include "runtime/disk.h"
#include "runtime/whole_io.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/source_tree.h"

namespace story {
namespace {

namespace fs = std::filesystem;

class SetUpTest : public testing::Test {
 protected:
  SetUpTest() : world{fresh.Path() / "folder"} {
    fs::create_directory(world.Folder);
    LayOutFolder(world, kit::DeliveredFolder());
  }
  void Play(std::string_view line) { story::SetUp(world, ParseLine(line, 5), fresh.Path()); }
  std::string Bytes(std::string_view name) const { return ReadBytes(world.Folder / name).value_or("(missing)"); }
  // Whether the line is refused, and under its own number.
  bool Refuses(std::string_view line) {
    try {
      Play(line);
    } catch (const Difference& difference) {
      return difference.Line == 5;
    }
    return false;
  }

  kit::FreshFolder fresh;
  World world;
};

std::string Record(std::string_view title, std::string_view tail = "\r\n") {
  std::string record(title);
  record.resize(647, ' ');
  return record.append(tail);
}

TEST_F(SetUpTest, BeginsWithTheDeliveredFilesAndEverythingTurnedOff) {
  for (const char* name : {"Fo", "Fo1", "AutoSave", "AutoSort"}) EXPECT_EQ(Bytes(name), "NO\r\n") << name;
  EXPECT_EQ(Bytes("Titlepra"), " 0\r\n");
  EXPECT_EQ(Bytes("UPPER.ALT").size(), 256u);
  EXPECT_EQ(Bytes("Recpra.Dat"), "(missing)");
  EXPECT_EQ(world.Drives.at('c'), world.Folder);
}

TEST_F(SetUpTest, WritesAFilmAtItsSlot) {
  Play("film 3 Title=\"Alien\"");
  EXPECT_EQ(Bytes("Recpra.Dat"), Record("") + Record("") + Record("Alien"));
}

TEST_F(SetUpTest, WritesOverAFilmAndLeavesTheOthers) {
  Play("film 2 Title=\"Brazil\"");
  Play("film 1 Title=\"Alien\" Tail=\"xy\"");
  EXPECT_EQ(Bytes("Recpra.Dat"), Record("Alien", "xy") + Record("Brazil"));
}

TEST_F(SetUpTest, CutsAndPadsFields) {
  Play("film 1 Format=\"Laser\" NumReel=\"2\" Genre=\"SF\"");
  EXPECT_EQ(Bytes("Recpra.Dat").substr(264, 6), " L2SF ");
  EXPECT_EQ(Bytes("Recpra.Dat").size(), 649u);
}

TEST_F(SetUpTest, NumbersTheFilmsOfARange) {
  Play("films 2 11 Title=\"Film ### of #\"");
  std::string bytes = Bytes("Recpra.Dat");
  EXPECT_EQ(bytes.size(), 11u * 649);
  EXPECT_EQ(bytes.substr(0, 649), Record(""));
  EXPECT_EQ(bytes.substr(649, 649), Record("Film 002 of 2"));
  EXPECT_EQ(bytes.substr(10 * 649), Record("Film 011 of 11"));
}

TEST_F(SetUpTest, LeavesNumberSignsOfASingleFilmAlone) {
  Play("film 1 Title=\"#1\"");
  EXPECT_EQ(Bytes("Recpra.Dat"), Record("#1"));
}

TEST_F(SetUpTest, SortsWhatStandsInTheFolder) {
  Play("film 1 Title=\"\xC3\xA9toile\" Format=\"D\"");
  Play("film 2 Title=\"Zulu\" Format=\"D\"");
  Play("sorted");
  EXPECT_EQ(Bytes("DVDpra"), " 2\r\n");
  EXPECT_EQ(Bytes("VHSpra"), " 0\r\n");
  EXPECT_EQ(Bytes("VHSpra.Dat"), "");
  EXPECT_EQ(Bytes("DVDpra.Dat"),
            "Zulu" + std::string(36, ' ') + "0000002\r\n" + "\xE9toile" + std::string(34, ' ') + "0000001\r\n");
}

TEST_F(SetUpTest, AppendsKeys) {
  Play("key DVDpra.Dat \"Alien\" 12");
  Play("key DVDpra.Dat \"0123456789012345678901234567890123456789cut\" 1");
  EXPECT_EQ(Bytes("DVDpra.Dat"),
            "Alien" + std::string(35, ' ') + "0000012\r\n0123456789012345678901234567890123456789" + "0000001\r\n");
}

TEST_F(SetUpTest, WritesCountsAndFilesAndRemovesThem) {
  Play("count Titlepra 17");
  Play("file Last \" 5 \\r\\n\\x00\"");
  Play("remove DVDpra");
  EXPECT_EQ(Bytes("Titlepra"), " 17\r\n");
  EXPECT_EQ(Bytes("Last"), std::string(" 5 \r\n\0", 6));
  EXPECT_EQ(Bytes("DVDpra"), "(missing)");
}

TEST_F(SetUpTest, CopiesAFolderWithRightsToWrite) {
  fs::create_directory(fresh.Path() / "collection");
  WriteBytes(fresh.Path() / "collection" / "Recpra.Dat", "films");
  fs::permissions(fresh.Path() / "collection" / "Recpra.Dat", fs::perms::owner_read);
  Play("folder collection");
  EXPECT_EQ(Bytes("Recpra.Dat"), "films");
  EXPECT_NE(fs::status(world.Folder / "Recpra.Dat").permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(SetUpTest, StopsTheClock) {
  Play("clock 2026-11-21 05:30:07");
  auto day = std::chrono::local_days(std::chrono::year(2026) / 11 / 21);
  EXPECT_EQ(world.Clock, day + std::chrono::hours(5) + std::chrono::minutes(30) + std::chrono::seconds(7));
}

TEST_F(SetUpTest, DatesAFile) {
  Play("file Backup.dat \"x\"");
  Play("time Backup.dat 2026-07-04 23:05:07");
  runtime::RealDisk disk(world.Folder.string());
  runtime::OpenFile file(disk, "Backup.dat", runtime::Disk::Mode::Read);
  EXPECT_EQ(runtime::LocalTime(file.Modified().Seconds), std::chrono::local_days(std::chrono::July / 4 / 2026) +
                                                             std::chrono::hours(23) + std::chrono::minutes(5) +
                                                             std::chrono::seconds(7));
  EXPECT_TRUE(Refuses("time Backup.dat 2026-13-04 23:05:07"));
  EXPECT_TRUE(Refuses("time missing.dat 2026-07-04 23:05:07"));
}

TEST_F(SetUpTest, PutsDisksIntoDrives) {
  Play("drive A disk");
  Play("drive b none");
  ASSERT_TRUE(world.Drives.at('a'));
  EXPECT_EQ(*world.Drives.at('a'), fresh.Path() / "disk");
  EXPECT_TRUE(fs::is_empty(fresh.Path() / "disk"));
  EXPECT_EQ(world.Drives.at('b'), std::nullopt);
}

TEST_F(SetUpTest, MakesADiskEmpty) {
  Play("drive a disk");
  WriteBytes(fresh.Path() / "disk" / "old", "x");
  Play("drive a disk");
  EXPECT_TRUE(fs::is_empty(fresh.Path() / "disk"));
}

TEST_F(SetUpTest, RefusesWhatItCannotPlay) {
  for (const char* line : {"film 0 Title=\"A\"", "film 1 Titel=\"A\"", "films 3 2 Title=\"A\"", "remove Nothing",
                           "folder nowhere", "clock 2026-02-30 00:00:00", "clock 2026-02-03 24:00:00",
                           "clock today now", "drive ab disk", "drive a ..", "drive a ../disk", "drive a folder"}) {
    EXPECT_TRUE(Refuses(line)) << line;
  }
}

}  // namespace
}  // namespace story
