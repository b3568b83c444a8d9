// The settings file of the launcher.
#include "launcher/known_collections.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "runtime/failure.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/memory_disk.h"
#include "tests/story/world.h"

namespace launcher {
namespace {

using kit::Folder;
using kit::MemoryDisk;

const std::string File(SettingsFile);

TEST(KnownCollections, AreReadAsTheyWereWritten) {
  KnownCollections known{{"/home/a/Film Collection", "/with \"quotes\"", "/two\nlines", "/back\\slash\\n", "/ blank "},
                         "/media/copies",
                         {"# mine", "copies here"}};
  MemoryDisk disk(Folder{});
  WriteKnown(disk, known);
  EXPECT_EQ(ReadKnown(disk), known);
  EXPECT_EQ(disk.Content().size(), 1U);
}

TEST(KnownCollections, WhatStopsHaveLeftGoesWithTheNextWrite) {
  const Folder others = {{File + ".new.mine", "1"}, {File + "2.new", "2"}, {File + ".old.new", "3"},
                         {File + "..new", "4"},     {"other.new", "5"},    {"sub/" + File + ".new", "6"}};
  Folder before = others;
  for (const char* ending : {".new", ".2.new", ".17.new"}) before[File + ending] = "half";
  MemoryDisk disk(before);
  WriteKnown(disk, {{"/a"}, "", {}});
  Folder after = disk.Content();
  EXPECT_EQ(after.erase(File), 1U);
  EXPECT_EQ(after, others);
}

TEST(KnownCollections, WhatAnotherStartMayBeWritingStays) {
  const kit::FreshFolder folder;
  const std::filesystem::path present = folder.Path() / (File + ".new"), left = folder.Path() / (File + ".2.new");
  for (const auto& path : {present, left}) story::WriteBytes(path, "half");
  std::filesystem::last_write_time(left, std::filesystem::last_write_time(left) - std::chrono::minutes(2));
  runtime::RealDisk disk(folder.Path().string());
  WriteKnown(disk, {{"/a"}, "", {}});
  EXPECT_TRUE(std::filesystem::exists(present));
  EXPECT_FALSE(std::filesystem::exists(left));
  EXPECT_EQ(ReadKnown(disk).Folders, std::vector<std::string>{"/a"});
}

TEST(KnownCollections, AMissingFileIsAnEmptyOne) {
  MemoryDisk disk(Folder{});
  EXPECT_EQ(ReadKnown(disk), KnownCollections());
}

TEST(KnownCollections, LinesThatMeanNothingStay) {
  MemoryDisk disk(Folder{{File, "# mine\ncollection = films\ncollection = /a\ncollection = /a\ncopies = there\n\nx"}});
  EXPECT_EQ(ReadKnown(disk), (KnownCollections{{"/a"}, "there", {"# mine", "x"}}));
}

TEST(KnownCollections, TheLastOneOpenedIsTheFirst) {
  KnownCollections known{{"/a", "/b"}, "", {}};
  Remember(known, "/b");
  EXPECT_EQ(known.Folders, (std::vector<std::string>{"/b", "/a"}));
  for (int count = 0; count < 20; ++count) Remember(known, "/" + std::to_string(count));
  EXPECT_EQ(known.Folders.size(), MostFolders);
  EXPECT_EQ(known.Folders.front(), "/19");
}

TEST(KnownCollections, AFailureKeepsTheOldFile) {
  const KnownCollections old{{"/a"}, "", {}};
  const KnownCollections next{{"/b", "/a"}, "", {}};
  MemoryDisk start(Folder{});
  WriteKnown(start, old);
  const Folder before = start.Content();
  MemoryDisk counted(before);
  kit::FaultyDisk counting(counted);
  WriteKnown(counting, next);
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::Refused, kit::Fault::ShortThenFull,
                           kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t call = 0; call < counting.Calls(); ++call) {
      MemoryDisk below(before);
      kit::FaultyDisk faulty(below, {fault, call, true});
      bool stopped = false;
      try {
        WriteKnown(faulty, next);
      } catch (const runtime::Failure&) {
        stopped = true;
      } catch (const kit::Killed&) {
        stopped = true;
      }
      KnownCollections after = ReadKnown(below);
      EXPECT_TRUE(after == next || (stopped && after == old)) << NameOf(fault) << " at " << call;
    }
  }
}

}  // namespace
}  // namespace launcher
