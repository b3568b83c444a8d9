// A copy is complete or absent, whatever fails.
#include "runtime/copy_file.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <utility>

#include "runtime/clock.h"
#include "runtime/failure.h"
#include "runtime/whole_io.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"
#include "tests/story/world.h"

namespace {

using kit::Fault;
using kit::FaultyDisk;
using kit::Folder;
using kit::MemoryDisk;

const std::string Name = "Recpra.Dat";
const std::string Old(1500, 'o');
const std::string New = std::string(300 * 1024, 'n') + "end";

const Fault AllFaults[] = {Fault::Full,  Fault::Error,         Fault::Refused, Fault::Interrupted,
                           Fault::Short, Fault::ShortThenFull, Fault::Kill,    Fault::KillHalfway};

enum class Outcome { Done, Failed, Killed };

Outcome Copy(runtime::Disk& source, runtime::Disk& target) {
  try {
    runtime::CopyFile(source, Name, target, Name);
  } catch (const runtime::Failure&) {
    return Outcome::Failed;
  } catch (const kit::Killed&) {
    return Outcome::Killed;
  }
  return Outcome::Done;
}

std::size_t CallsOnTarget(const Folder& before) {
  MemoryDisk source(Folder{{Name, New}});
  MemoryDisk below(before);
  FaultyDisk target(below);
  EXPECT_EQ(Copy(source, target), Outcome::Done);
  return target.Calls();
}

// The target has its old content, or the whole new file.
void ExpectOldOrNew(const Folder& before, const Folder& after) {
  auto was = before.find(Name);
  auto is = after.find(Name);
  bool old = was == before.end() ? is == after.end() : is != after.end() && is->second == was->second;
  EXPECT_TRUE(old || (is != after.end() && is->second == New));
}

TEST(CopyFile, TheTargetIsTheSourceByteForByteAndNothingElseIsLeft) {
  MemoryDisk source(Folder{{"old/Recpra.Dat", New}, {Name, Old}});
  MemoryDisk target(Folder{{"other.txt", "x"}});
  runtime::CopyFile(source, "old/Recpra.Dat", target, Name);
  EXPECT_EQ(target.Content(), (Folder{{Name, New}, {"other.txt", "x"}}));
}

TEST(CopyFile, AnEmptyFileIsCopied) {
  MemoryDisk source(Folder{{Name, ""}});
  MemoryDisk target(Folder{{Name, Old}});
  runtime::CopyFile(source, Name, target, Name);
  EXPECT_EQ(target.Content(), (Folder{{Name, ""}}));
}

TEST(CopyFile, AFileCopiedOntoItselfStays) {
  MemoryDisk disk(Folder{{Name, New}});
  runtime::CopyFile(disk, Name, disk, Name);
  EXPECT_EQ(disk.Content(), (Folder{{Name, New}}));
}

TEST(CopyFile, AfterAFaultAtAnyCallTheTargetIsOldOrNew) {
  for (const Folder& before : {Folder{{Name, Old}}, Folder{}}) {
    std::size_t calls = CallsOnTarget(before);
    ASSERT_GT(calls, 6u);
    for (Fault fault : AllFaults) {
      // A call that is always interrupted would be repeated for ever.
      std::size_t plans = fault == Fault::Interrupted ? calls : 2 * calls;
      for (std::size_t at = 0; at < plans; ++at) {
        SCOPED_TRACE(testing::Message() << NameOf(fault) << " at call " << at);
        MemoryDisk source(Folder{{Name, New}});
        MemoryDisk below(before);
        FaultyDisk target(below, {fault, at % calls, at >= calls});
        Outcome outcome = Copy(source, target);
        ExpectOldOrNew(before, below.Content());
        if (outcome == Outcome::Done) {
          EXPECT_EQ(below.Content(), (Folder{{Name, New}}));
        }
        if (outcome == Outcome::Failed && at < calls) {
          EXPECT_LE(below.Content().size(), 1u) << "a part is left next to the target";
        }
        EXPECT_EQ(source.Content(), (Folder{{Name, New}}));
      }
    }
  }
}

TEST(CopyFile, FailsAtAnyFaultOfTheSourceAndTheTargetIsOld) {
  MemoryDisk below(Folder{{Name, New}});
  MemoryDisk copy(Folder{});
  FaultyDisk counting(below);
  ASSERT_EQ(Copy(counting, copy), Outcome::Done);
  ASSERT_GT(counting.Calls(), 2u);
  for (std::size_t at = 0; at < counting.Calls(); ++at) {
    FaultyDisk source(below, {Fault::Error, at});
    MemoryDisk target(Folder{{Name, Old}});
    EXPECT_EQ(Copy(source, target), Outcome::Failed) << at;
    EXPECT_EQ(target.Content(), (Folder{{Name, Old}})) << at;
  }
}

TEST(CopyFile, WhenThePowerFailsTheTargetIsOldOrNewAndNewOnceItIsDone) {
  const Folder before = {{Name, Old}};
  const std::string short_new(2000, 'n');
  MemoryDisk source(Folder{{Name, short_new}});
  MemoryDisk target(before);
  ASSERT_EQ(Copy(source, target), Outcome::Done);
  for (std::size_t moment = 0; moment <= target.Moments(); ++moment) {
    for (const Folder& state : target.AfterPowerLoss(moment, 4096)) {
      std::string found = state.contains(Name) ? state.at(Name) : "";
      EXPECT_TRUE(found == short_new || (moment < target.Moments() && found == Old)) << moment;
    }
  }
}

TEST(CopyFile, AFullDiskIsNamed) {
  MemoryDisk source(Folder{{Name, New}});
  MemoryDisk below(Folder{{Name, Old}});
  FaultyDisk target(below, {Fault::Full, 2, true});
  try {
    runtime::CopyFile(source, Name, target, Name);
    FAIL() << "the copy went through";
  } catch (const runtime::Failure& failure) {
    EXPECT_EQ(failure.Name, runtime::DiskFull);
  }
}

// A disk that has room for so many bytes in all.
class SmallDisk final : public kit::PassingDisk {
 public:
  SmallDisk(MemoryDisk& below, std::size_t room) : PassingDisk(below), memory_(below), room_(room) {}
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    std::size_t used = 0;
    for (const auto& [name, bytes] : memory_.Content()) used += bytes.size();
    if (used >= room_) return -ENOSPC;
    return PassingDisk::WriteAt(handle, source, std::min(count, room_ - used), offset);
  }

 private:
  MemoryDisk& memory_;
  std::size_t room_;
};

std::string NameOfFailure(runtime::Disk& source, runtime::Disk& target) {
  try {
    runtime::CopyFile(source, Name, target, Name);
  } catch (const runtime::Failure& failure) {
    return std::string(failure.Name);
  }
  return "";
}

TEST(CopyOnASmallDisk, TheOldFileGivesWayWhereOnlyOneHasRoom) {
  MemoryDisk source(Folder{{Name, std::string(1000, 'n')}});
  for (std::size_t old_length : {400U, 1000U, 1500U}) {
    MemoryDisk below(Folder{{Name, std::string(old_length, 'o')}, {"other.txt", std::string(100, 'x')}});
    SmallDisk target(below, std::max<std::size_t>(old_length, 1000) + 100);
    EXPECT_EQ(NameOfFailure(source, target), "") << old_length;
    EXPECT_EQ(below.Content().at(Name), source.Content().at(Name)) << old_length;
    EXPECT_EQ(below.Content().size(), 2U);
  }
}

TEST(CopyOnASmallDisk, TheOldFileStaysWhereTheNewOneHasNoRoomInItsPlace) {
  MemoryDisk source(Folder{{Name, std::string(1000, 'n')}});
  const Folder before = {{Name, std::string(400, 'o')}};
  MemoryDisk below(before);
  SmallDisk target(below, 999);
  EXPECT_EQ(NameOfFailure(source, target), runtime::DiskFull);
  EXPECT_EQ(below.Content(), before);
}

TEST(CopyOnASmallDisk, TheOldFileStaysWhereThereIsRoomForBoth) {
  MemoryDisk source(Folder{{Name, std::string(1000, 'n')}});
  MemoryDisk below(Folder{{Name, std::string(1000, 'o')}});
  SmallDisk target(below, 2000);
  ASSERT_EQ(NameOfFailure(source, target), "");
  for (std::size_t moment = 0; moment <= below.Moments(); ++moment) {
    for (const Folder& state : below.AfterPowerLoss(moment, 256)) ASSERT_TRUE(state.contains(Name)) << moment;
  }
}

TEST(CopyOnASmallDisk, AFileNeverGivesWayToItself) {
  const Folder before = {{Name, std::string(1000, 'n')}};
  MemoryDisk below(before);
  SmallDisk disk(below, 1500);
  EXPECT_EQ(NameOfFailure(disk, disk), runtime::DiskFull);
  EXPECT_EQ(below.Content(), before);
}

TEST(CopyFile, TheCopyHasTheTimeOfItsSource) {
  const runtime::FileTime time = {-86'400, 250'000'000};
  MemoryDisk source(Folder{{Name, New}});
  MemoryDisk target(Folder{{Name, Old}});
  runtime::OpenFile(source, Name, runtime::Disk::Mode::Read).SetModified(time);
  runtime::CopyFile(source, Name, target, Name);
  EXPECT_EQ(runtime::OpenFile(target, Name, runtime::Disk::Mode::Read).Modified(), time);
}

TEST(CopyFile, TheLeftoversOfAStoppedCopyGoAtTheNext) {
  MemoryDisk source(Folder{{Name, New}});
  MemoryDisk below(Folder{{".hidden.new", "not ours"}});
  FaultyDisk killing(below, {Fault::Kill, 4});
  ASSERT_EQ(Copy(source, killing), Outcome::Killed);
  ASSERT_EQ(below.Content().size(), 2U);
  EXPECT_EQ(Copy(source, below), Outcome::Done);
  EXPECT_EQ(below.Content(), (Folder{{".hidden.new", "not ours"}, {Name, New}}));
}

const std::string Aside = ".reelora-copy.new";

// Does what another program does at the first sync of the temporary file.
class SharedDisk final : public kit::PassingDisk {
 public:
  SharedDisk(MemoryDisk& below, std::function<void()> other) : PassingDisk(below), other_(std::move(other)) {}
  int Sync(int handle) override {
    if (other_) std::exchange(other_, nullptr)();
    return PassingDisk::Sync(handle);
  }

 private:
  std::function<void()> other_;
};

TEST(TwoCopiesAtOnce, AreBothMade) {
  MemoryDisk source(Folder{{Name, New}}), other_source(Folder{{"Last", Old}}), below(Folder{});
  SharedDisk target(below, [&] { runtime::CopyFile(other_source, "Last", below, "Last"); });
  EXPECT_EQ(NameOfFailure(source, target), "");
  EXPECT_EQ(below.Content(), (Folder{{Name, New}, {"Last", Old}}));
}

TEST(TwoCopiesAtOnce, GiveNoneTheFileOfTheOther) {
  for (const char* taken_by : {"another file", "nothing"}) {
    MemoryDisk source(Folder{{Name, New}}), below(Folder{{Name, Old}});
    Folder after = below.Content();
    SharedDisk target(below, [&] {
      below.Remove(Aside);
      if (taken_by == std::string("nothing")) return;
      runtime::OpenFile(below, Aside, runtime::Disk::Mode::CreateNew).Write("half", 0);
      after[Aside] = "half";
    });
    EXPECT_EQ(NameOfFailure(source, target), runtime::PathError) << taken_by;
    EXPECT_EQ(below.Content(), after) << taken_by;
  }
}

TEST(TwoCopiesAtOnce, OneThatFailsLeavesTheFileOfTheOther) {
  MemoryDisk source(Folder{{Name, New}}), below(Folder{{Name, Old}});
  class Failing final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    int Sync(int) override {
      Below().Remove(Aside);
      runtime::OpenFile(Below(), Aside, runtime::Disk::Mode::CreateNew).Write("half", 0);
      return -EIO;
    }
  };
  Failing target(below);
  EXPECT_EQ(NameOfFailure(source, target), runtime::DeviceError);
  EXPECT_EQ(below.Content(), (Folder{{Name, Old}, {Aside, "half"}}));
}

TEST(TwoCopiesAtOnce, ALeftoverThatNobodyMayWriteGoesToo) {
  class ReadOnly final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    int Open(const std::string& name, Mode mode) override {
      return mode == Mode::ReadWrite ? -EACCES : PassingDisk::Open(name, mode);
    }
  };
  MemoryDisk source(Folder{{Name, New}}), below(Folder{{Aside, "half"}});
  ReadOnly target(below);
  EXPECT_EQ(NameOfFailure(source, target), "");
  EXPECT_EQ(below.Content(), (Folder{{Name, New}}));
}

struct CopyOnRealDisks : testing::Test {
  std::filesystem::path Lay(const std::string& name, const std::string& bytes) {
    story::WriteBytes(Folder.Path() / name, bytes);
    return Folder.Path() / name;
  }
  std::string Bytes(const std::string& name) { return story::ReadBytes(Folder.Path() / name).value_or("(missing)"); }

  CopyOnRealDisks() {
    std::filesystem::create_directory(Folder.Path() / "hard");
    std::filesystem::create_directory(Folder.Path() / "floppy");
  }
  kit::FreshFolder Folder;
  runtime::RealDisk Hard{Folder.Path() / "hard"};
  runtime::RealDisk Floppy{Folder.Path() / "floppy", runtime::RealDisk::Links::Refused};
};

TEST_F(CopyOnRealDisks, TimesBefore1970AreCopiedToo) {
  Lay("hard/Recpra.Dat", "films");
  const runtime::FileTime time = {-1'000'000'000, 500};
  runtime::OpenFile(Hard, Name, runtime::Disk::Mode::Read).SetModified(time);
  EXPECT_EQ(runtime::CopyFile(Hard, Name, Floppy, Name), runtime::Copied::Confirmed);
  EXPECT_EQ(runtime::OpenFile(Floppy, Name, runtime::Disk::Mode::Read).Modified(), time);
  EXPECT_TRUE(runtime::LongDateText(runtime::FactsOf(Floppy, Name).Modified).ends_with("1938"));
}

TEST_F(CopyOnRealDisks, NoLinkOfTheTargetIsFollowed) {
  Lay("hard/Recpra.Dat", "films");
  Lay("precious", "precious");
  for (const char* name : {"Recpra.Dat", ".Recpra.Dat.new", ".reelora-copy.new", ".reelora-copy.2.new"})
    std::filesystem::create_symlink("../precious", Folder.Path() / "floppy" / name);
  EXPECT_THROW(runtime::FactsOf(Floppy, Name), runtime::Failure);
  runtime::CopyFile(Hard, Name, Floppy, Name);
  EXPECT_EQ(Bytes("precious"), "precious");
  EXPECT_EQ(Bytes("floppy/Recpra.Dat"), "films");
  EXPECT_FALSE(std::filesystem::is_symlink(Folder.Path() / "floppy/Recpra.Dat"));
}

TEST_F(CopyOnRealDisks, WhatAnotherProgramIsWritingStays) {
  Lay("hard/Recpra.Dat", "films");
  for (const char* name : {".reelora-copy.new", ".reelora-copy.2.new"}) Lay("floppy/" + std::string(name), "half");
  const runtime::OpenFile other(Floppy, Aside, runtime::Disk::Mode::ReadWrite);
  ASSERT_TRUE(other.Lock());
  runtime::CopyFile(Hard, Name, Floppy, Name);
  EXPECT_EQ(Bytes("floppy/Recpra.Dat"), "films");
  EXPECT_EQ(Bytes("floppy/.reelora-copy.new"), "half");
  EXPECT_FALSE(std::filesystem::exists(Folder.Path() / "floppy/.reelora-copy.2.new"));
}

TEST(FactsOf, AMissingFileIsNamed) {
  MemoryDisk disk(Folder{});
  try {
    runtime::FactsOf(disk, Name);
    FAIL() << "facts of nothing";
  } catch (const runtime::Failure& failure) {
    EXPECT_EQ(failure.Name, runtime::FileNotFound);
  }
}

TEST(LongDateText, NamesDayAndMonthInEnglish) {
  using namespace std::chrono;
  EXPECT_EQ(runtime::LongDateText(local_days(2026y / 11 / 21)), "Saturday, November 21, 2026");
  EXPECT_EQ(runtime::LongDateText(local_days(2000y / 1 / 2) + hours(23)), "Sunday, January 2, 2000");
  EXPECT_EQ(runtime::LongDateText(local_days(2024y / 2 / 29)), "Thursday, February 29, 2024");
  struct Row {
    unsigned Month, Day;
    std::string Text;
  };
  for (const Row& row :
       {Row{1, 1, "Monday, January 1"}, Row{1, 2, "Tuesday, January 2"}, Row{1, 3, "Wednesday, January 3"},
        Row{1, 5, "Friday, January 5"}, Row{3, 1, "Friday, March 1"}, Row{4, 1, "Monday, April 1"},
        Row{5, 1, "Wednesday, May 1"}, Row{6, 1, "Saturday, June 1"}, Row{7, 1, "Monday, July 1"},
        Row{8, 1, "Thursday, August 1"}, Row{9, 1, "Sunday, September 1"}, Row{10, 1, "Tuesday, October 1"},
        Row{12, 1, "Sunday, December 1"}})
    EXPECT_EQ(runtime::LongDateText(local_days(2024y / row.Month / row.Day)), row.Text + ", 2024");
}

TEST(ShortTimeText, HasTwelveHoursWithoutALeadingZero) {
  using namespace std::chrono;
  auto at = [](int hour, int minute) {
    return runtime::ShortTimeText(local_days(2026y / 11 / 21) + hours(hour) + minutes(minute));
  };
  EXPECT_EQ(at(0, 5), "12:05 AM");
  EXPECT_EQ(at(5, 30), "5:30 AM");
  EXPECT_EQ(at(11, 59), "11:59 AM");
  EXPECT_EQ(at(12, 0), "12:00 PM");
  EXPECT_EQ(at(23, 9), "11:09 PM");
}

}  // namespace
