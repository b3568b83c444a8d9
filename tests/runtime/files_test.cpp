// Numbered files in a real folder: numbers, random records, lines.
#include "runtime/files.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/kit/fresh_folder.h"
#include "tests/story/world.h"

namespace runtime {
namespace {

class FilesTest : public testing::Test {
 protected:
  std::string Bytes(std::string_view name) const { return story::ReadBytes(fresh.Path() / name).value_or("(missing)"); }
  void Lay(std::string_view name, std::string_view bytes) const { story::WriteBytes(fresh.Path() / name, bytes); }
  std::string Record(int number, int record, std::string target = "xxxx") {
    files.Get(number, record, target.data());
    return target;
  }
  // The name and file of the failure of the call; "" if it succeeds.
  template <typename Call>
  std::string FailureOf(Call call) {
    try {
      call();
    } catch (const Failure& failure) {
      return std::string(failure.Name) + (failure.File.empty() ? "" : ": " + failure.File);
    }
    return "";
  }

  kit::FreshFolder fresh;
  RealDisk disk{fresh.Path().string()};
  Files files{disk};
};

TEST_F(FilesTest, AnOpenNumberCannotBeOpenedAgain) {
  Lay("Last", " 5 \r\n");
  files.OpenInput(3, "Last");
  EXPECT_EQ(FailureOf([&] { files.OpenInput(3, "Last"); }), "File already open: Last");
  EXPECT_EQ(FailureOf([&] { files.OpenRandom(3, "Recpra.Dat", 4); }), "File already open: Recpra.Dat");
  EXPECT_EQ(FailureOf([&] { files.OpenOutput(3, "Last"); }), "File already open: Last");
  EXPECT_EQ(files.ReadItem(3), "5 ");
}

TEST_F(FilesTest, ANumberThatIsNotOpenCannotBeUsed) {
  char target[4] = {};
  EXPECT_EQ(FailureOf([&] { files.Get(1, 1, target); }), "Bad file name or number");
  EXPECT_EQ(FailureOf([&] { files.Put(1, 1, target); }), "Bad file name or number");
  EXPECT_EQ(FailureOf([&] { files.ReadItem(1); }), "Bad file name or number");
  EXPECT_EQ(FailureOf([&] { files.WriteLine(1, "a"); }), "Bad file name or number");
  EXPECT_EQ(FailureOf([&] { files.Length(1); }), "Bad file name or number");
}

TEST_F(FilesTest, NumbersGoFromOneToFive) {
  EXPECT_EQ(FailureOf([&] { files.OpenOutput(0, "Last"); }), "Bad file name or number: Last");
  EXPECT_EQ(FailureOf([&] { files.OpenOutput(6, "Last"); }), "Bad file name or number: Last");
  EXPECT_EQ(FailureOf([&] { files.OpenOutput(5, "Last"); }), "");
}

TEST_F(FilesTest, ANumberTellsWhetherItIsThatFile) {
  files.OpenOutput(2, "Last");
  files.OpenOutput(3, "Other");
  EXPECT_TRUE(files.IsOpen(2, "Last"));
  EXPECT_TRUE(files.IsOpen(3, "Other"));
  EXPECT_FALSE(files.IsOpen(3, "Last"));
  EXPECT_FALSE(files.IsOpen(4, "Last"));
}

TEST_F(FilesTest, ClosingWhatIsNotOpenDoesNothing) {
  for (int number : {0, 1, 5, 6}) EXPECT_EQ(FailureOf([&] { files.Close(number); }), "");
}

TEST_F(FilesTest, AClosedNumberCanBeOpenedAgain) {
  files.OpenRandom(2, "Recpra.Dat", 4);
  EXPECT_TRUE(files.IsOpen(2));
  files.Close(2);
  EXPECT_FALSE(files.IsOpen(2));
  EXPECT_EQ(FailureOf([&] { files.OpenRandom(2, "Recpra.Dat", 4); }), "");
}

TEST_F(FilesTest, ARandomFileIsMadeEmptyWhenMissing) {
  files.OpenRandom(1, "Recpra.Dat", 4);
  EXPECT_EQ(Bytes("Recpra.Dat"), "");
  EXPECT_EQ(files.Length(1), 0);
}

TEST_F(FilesTest, RecordNLiesAtItsMultipleOfTheLength) {
  Lay("Recpra.Dat", "AAAABBBBCCCC");
  files.OpenRandom(1, "Recpra.Dat", 4);
  EXPECT_EQ(Record(1, 1), "AAAA");
  EXPECT_EQ(Record(1, 3), "CCCC");
  EXPECT_EQ(Record(1, 2), "BBBB");
  files.Put(1, 2, "bbbb");
  EXPECT_EQ(Bytes("Recpra.Dat"), "AAAAbbbbCCCC");
  EXPECT_EQ(Record(1, 2), "bbbb");
}

TEST_F(FilesTest, RecordNumbersBelowOneAreRefused) {
  char target[4] = {'x', 'x', 'x', 'x'};
  Lay("Recpra.Dat", "AAAA");
  files.OpenRandom(1, "Recpra.Dat", 4);
  for (int record : {0, -1}) {
    EXPECT_EQ(FailureOf([&] { files.Get(1, record, target); }), "Bad record number: Recpra.Dat");
    EXPECT_EQ(FailureOf([&] { files.Put(1, record, "BBBB"); }), "Bad record number: Recpra.Dat");
  }
  EXPECT_EQ(target[0], 'x');
  EXPECT_EQ(Bytes("Recpra.Dat"), "AAAA");
}

TEST_F(FilesTest, PastTheEndNothingIsDelivered) {
  Lay("Recpra.Dat", "AAAABBBB");
  files.OpenRandom(1, "Recpra.Dat", 4);
  std::string target = "xxxx";
  EXPECT_FALSE(files.Get(1, 3, target.data()));
  EXPECT_EQ(target, "xxxx");
  EXPECT_FALSE(files.Get(1, 1000000, target.data()));
  EXPECT_EQ(target, "xxxx");
}

TEST_F(FilesTest, ThePartOfARecordIsDeliveredAndTheRestReadsAsBlanks) {
  Lay("Recpra.Dat", "AAAABB");
  files.OpenRandom(1, "Recpra.Dat", 4);
  EXPECT_EQ(Record(1, 2), "BB  ");
  EXPECT_EQ(Record(1, 1), "AAAA");
  EXPECT_EQ(Record(1, 2), "BB  ");
  EXPECT_EQ(Bytes("Recpra.Dat"), "AAAABB");
}

TEST_F(FilesTest, AWritePastTheEndFillsWithBlanks) {
  Lay("Recpra.Dat", "AAAAB");
  files.OpenRandom(1, "Recpra.Dat", 4);
  files.Put(1, 4, "DDDD");
  EXPECT_EQ(Bytes("Recpra.Dat"), "AAAAB       DDDD");
  EXPECT_EQ(Record(1, 3), "    ");
}

TEST_F(FilesTest, AScanReadsEveryRecordInOrder) {
  std::string bytes;
  for (int record = 1; record <= 70000; ++record) bytes += std::to_string(1000000 + record);
  Lay("Recpra.Dat", bytes + "100");
  files.OpenRandom(1, "Recpra.Dat", 7);
  std::string target = "xxxxxxx";
  for (int record = 1; record <= 70000; ++record) {
    ASSERT_TRUE(files.Get(1, record, target.data()));
    ASSERT_EQ(target, std::to_string(1000000 + record));
  }
  EXPECT_TRUE(files.Get(1, 70001, target.data()));
  EXPECT_EQ(target, "100    ");
  EXPECT_FALSE(files.Get(1, 70002, target.data()));
}

TEST_F(FilesTest, AScanSeesARecordThatIsWrittenOnItsWay) {
  Lay("Recpra.Dat", "AAAABBBBCCCCDDDD");
  files.OpenRandom(1, "Recpra.Dat", 4);
  EXPECT_EQ(Record(1, 1), "AAAA");
  EXPECT_EQ(Record(1, 2), "BBBB");
  files.Put(1, 3, "cccc");
  files.Put(1, 5, "EEEE");
  EXPECT_EQ(Record(1, 3), "cccc");
  EXPECT_EQ(Record(1, 5), "EEEE");
}

TEST_F(FilesTest, AMissingFileCannotBeOpenedForInput) {
  EXPECT_EQ(FailureOf([&] { files.OpenInput(3, "Titlepra"); }), "File not found: Titlepra");
  EXPECT_FALSE(files.IsOpen(3));
  EXPECT_EQ(FailureOf([&] { files.Length("Titlepra"); }), "File not found: Titlepra");
}

TEST_F(FilesTest, ItemsEndWithTheLineAndLoseTheirLeadingBlanks) {
  Lay("Last", "  17 \r\n\r\n a b\nlast");
  files.OpenInput(3, "Last");
  EXPECT_EQ(files.ReadItem(3), "17 ");
  EXPECT_EQ(files.ReadItem(3), "");
  EXPECT_EQ(files.ReadItem(3), "a b");
  EXPECT_EQ(files.ReadItem(3), "last");
  EXPECT_EQ(FailureOf([&] { files.ReadItem(3); }), "Input past end of file: Last");
}

TEST_F(FilesTest, AnEmptyFileHoldsNoItem) {
  Lay("Last", "");
  files.OpenInput(3, "Last");
  EXPECT_EQ(FailureOf([&] { files.ReadItem(3); }), "Input past end of file: Last");
}

TEST_F(FilesTest, AfterItsLastLineEndThereIsNoItem) {
  Lay("Last", "5\r\n");
  files.OpenInput(3, "Last");
  files.ReadItem(3);
  EXPECT_EQ(FailureOf([&] { files.ReadItem(3); }), "Input past end of file: Last");
}

TEST_F(FilesTest, AnOutputFileTakesTheOldOnesPlaceWhenItIsClosed) {
  Lay("Titlepra", " 12345\r\n");
  files.OpenOutput(3, "Titlepra");
  files.WriteLine(3, " 7");
  EXPECT_EQ(Bytes("Titlepra"), " 12345\r\n");
  files.WriteLine(3, "");
  files.Close(3);
  EXPECT_EQ(Bytes("Titlepra"), " 7\r\n\r\n");
}

TEST_F(FilesTest, AnOutputFileThatIsNeverClosedChangesNothing) {
  Lay("Titlepra", " 12345\r\n");
  {
    Files stopped(disk);
    stopped.OpenOutput(3, "Titlepra");
    stopped.WriteLine(3, " 7");
  }
  EXPECT_EQ(Bytes("Titlepra"), " 12345\r\n");
}

TEST_F(FilesTest, WhatIsOpenForOneUseRefusesTheOthers) {
  char target[4] = {};
  Lay("Last", "5\r\n");
  files.OpenInput(1, "Last");
  files.OpenOutput(2, "Other");
  files.OpenRandom(3, "Recpra.Dat", 4);
  EXPECT_EQ(FailureOf([&] { files.WriteLine(1, "a"); }), "Bad file name or number: Last");
  EXPECT_EQ(FailureOf([&] { files.ReadItem(2); }), "Bad file name or number: Other");
  EXPECT_EQ(FailureOf([&] { files.Get(2, 1, target); }), "Bad file name or number: Other");
  EXPECT_EQ(FailureOf([&] { files.ReadItem(3); }), "Bad file name or number: Recpra.Dat");
  EXPECT_EQ(FailureOf([&] { files.Put(1, 1, "AAAA"); }), "Bad file name or number: Last");
}

TEST_F(FilesTest, ANumberReadsTheNewContentsOfAReplacedFile) {
  Lay("DVDpra.Dat", "AAAABBBB");
  files.OpenRandom(2, "DVDpra.Dat", 4);
  EXPECT_EQ(Record(2, 1), "AAAA");
  Lay("aside", "ZZZZ");
  std::filesystem::rename(fresh.Path() / "aside", fresh.Path() / "DVDpra.Dat");
  files.Replaced("DVDpra.Dat");
  EXPECT_EQ(Record(2, 1), "ZZZZ");
  EXPECT_EQ(Record(2, 2), "xxxx");
  EXPECT_EQ(files.Length(2), 4);
}

TEST_F(FilesTest, ALineReaderAndOtherFilesStayAsTheyAreWhenAFileIsReplaced) {
  Lay("Last", "5\r\n6\r\n");
  Lay("DVDpra.Dat", "AAAABBBB");
  files.OpenRandom(2, "DVDpra.Dat", 4);
  files.OpenInput(3, "Last");
  EXPECT_EQ(files.ReadItem(3), "5");
  for (const char* name : {"Last", "DVDpra.Dat"}) {
    Lay("aside", "7\r\n8\r\n9\r\n");
    std::filesystem::rename(fresh.Path() / "aside", fresh.Path() / name);
  }
  files.Replaced("Last");
  EXPECT_EQ(files.ReadItem(3), "6");
  EXPECT_EQ(Record(2, 2), "BBBB");
}

TEST_F(FilesTest, LengthsAreInBytes) {
  Lay("Recpra.Dat", "AAAAB");
  files.OpenRandom(1, "Recpra.Dat", 4);
  EXPECT_EQ(files.Length(1), 5);
  EXPECT_EQ(files.Length("Recpra.Dat"), 5);
  files.Put(1, 3, "CCCC");
  EXPECT_EQ(files.Length(1), 12);
  files.OpenOutput(2, "Last");
  files.WriteLine(2, " 7");
  EXPECT_EQ(files.Length(2), 4);
}

}  // namespace
}  // namespace runtime
