// What a loss of power may leave, and what a sync rules out.
#include "tests/kit/memory_disk.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kit {
namespace {

using Mode = runtime::Disk::Mode;

std::string Sectors(std::string_view marks) {
  std::string bytes;
  for (char mark : marks) bytes += std::string(SectorBytes, mark);
  return bytes;
}

void WriteAll(MemoryDisk& disk, int file, const std::string& bytes) {
  disk.WriteAt(file, bytes.data(), bytes.size(), 0);
}

// The contents of the file in all states of this moment, each once; "-" if it is missing.
std::vector<std::string> States(const MemoryDisk& disk, const std::string& name) {
  std::vector<std::string> states;
  for (const Folder& folder : disk.AfterPowerLoss(disk.Moments(), 1000)) {
    auto file = folder.find(name);
    std::string content = file == folder.end() ? "-" : file->second;
    if (std::find(states.begin(), states.end(), content) == states.end()) states.push_back(content);
  }
  std::sort(states.begin(), states.end());
  return states;
}

using Contents = std::vector<std::string>;

TEST(PowerLoss, LeavesAnySubsetOfTheSectorsUntilASync) {
  MemoryDisk disk(Folder{{"f", Sectors("aa")}});
  int file = disk.Open("f", Mode::ReadWrite);
  WriteAll(disk, file, Sectors("bb"));
  EXPECT_EQ(States(disk, "f"), (Contents{Sectors("aa"), Sectors("ab"), Sectors("ba"), Sectors("bb")}));
  disk.Sync(file);
  EXPECT_EQ(States(disk, "f"), Contents{Sectors("bb")});
}

TEST(PowerLoss, LeavesAFileThatGrewWithoutItsContent) {
  MemoryDisk disk(Folder{{"f", ""}});
  WriteAll(disk, disk.Open("f", Mode::ReadWrite), Sectors("b"));
  EXPECT_EQ(States(disk, "f"), (Contents{"", std::string(SectorBytes, '\0'), Sectors("b")}));
}

TEST(PowerLoss, LosesANameUntilItsFolderIsSynced) {
  MemoryDisk disk(Folder{});
  disk.MakeFolder("d");
  int file = disk.Open("d/f", Mode::Create);
  WriteAll(disk, file, "x");
  disk.Sync(file);
  EXPECT_EQ(States(disk, "d/f"), (Contents{"-", "x"}));
  disk.SyncFolder("d");
  EXPECT_EQ(States(disk, "d/f"), (Contents{"-", "x"}));
  disk.SyncFolder("");
  EXPECT_EQ(States(disk, "d/f"), Contents{"x"});
}

TEST(PowerLoss, TakesAFolderWithAllThatIsBelowIt) {
  MemoryDisk disk(Folder{});
  disk.MakeFolder("d");
  disk.MakeFolder("d/e");
  WriteAll(disk, disk.Open("d/e/f", Mode::Create), "x");
  EXPECT_EQ(disk.List("d"), std::vector<std::string>{"e"});
  disk.Sync(0);
  disk.SyncFolder("d/e");
  disk.SyncFolder("d");
  EXPECT_EQ(States(disk, "d/e/f"), (Contents{"-", "x"}));
  disk.SyncFolder("");
  EXPECT_EQ(States(disk, "d/e/f"), Contents{"x"});
  EXPECT_EQ(disk.RemoveFolder("d/e"), -ENOTEMPTY);
  disk.Remove("d/e/f");
  EXPECT_EQ(disk.RemoveFolder("d/e"), 0);
  EXPECT_EQ(States(disk, "d/e/f"), (Contents{"-", "x"}));
  disk.SyncFolder("d");
  EXPECT_EQ(States(disk, "d/e/f"), Contents{"-"});
}

TEST(PowerLoss, LeavesTheOldOrTheNewNameUntilBothFoldersAreSynced) {
  MemoryDisk disk(Folder{{"f", "old"}, {"d/f", "new"}});
  disk.Rename("d/f", "f");
  EXPECT_EQ(States(disk, "f"), (Contents{"new", "old"}));
  disk.SyncFolder("");
  EXPECT_EQ(States(disk, "f"), (Contents{"new", "old"}));
  disk.SyncFolder("d");
  EXPECT_EQ(States(disk, "f"), Contents{"new"});
}

TEST(PowerLoss, MayDropWhatAFailedSyncWasGivenUnlessItIsWrittenAgain) {
  MemoryDisk disk(Folder{{"f", Sectors("a")}});
  int file = disk.Open("f", Mode::ReadWrite);
  WriteAll(disk, file, Sectors("b"));
  disk.FailSync(file);
  disk.Sync(file);
  EXPECT_EQ(States(disk, "f"), (Contents{Sectors("a"), Sectors("b")}));
  WriteAll(disk, file, Sectors("b"));
  disk.Sync(file);
  EXPECT_EQ(States(disk, "f"), Contents{Sectors("b")});
}

TEST(PowerLoss, IsSampledWithNothingAndEverythingWhereTheStatesAreMany) {
  MemoryDisk disk(Folder{{"f", Sectors("aaaaaaaaaaaa")}});
  WriteAll(disk, disk.Open("f", Mode::ReadWrite), Sectors("bbbbbbbbbbbb"));
  auto states = disk.AfterPowerLoss(disk.Moments(), 10);
  ASSERT_EQ(states.size(), 10U);
  EXPECT_EQ(states[0].at("f"), Sectors("aaaaaaaaaaaa"));
  EXPECT_EQ(states[1].at("f"), Sectors("bbbbbbbbbbbb"));
  EXPECT_EQ(disk.AfterPowerLoss(disk.Moments(), 10), states);
}

}  // namespace
}  // namespace kit
