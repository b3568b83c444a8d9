// A copy is complete or absent, whatever fails.
#include "filecopy/copy_file.h"

#include <gtest/gtest.h>

#include "runtime/clock.h"
#include "runtime/failure.h"
#include "tests/kit/faulty_disk.h"

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
    filecopy::CopyFile(source, Name, target, Name);
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
  filecopy::CopyFile(source, "old/Recpra.Dat", target, Name);
  EXPECT_EQ(target.Content(), (Folder{{Name, New}, {"other.txt", "x"}}));
}

TEST(CopyFile, AnEmptyFileIsCopied) {
  MemoryDisk source(Folder{{Name, ""}});
  MemoryDisk target(Folder{{Name, Old}});
  filecopy::CopyFile(source, Name, target, Name);
  EXPECT_EQ(target.Content(), (Folder{{Name, ""}}));
}

TEST(CopyFile, AFileCopiedOntoItselfStays) {
  MemoryDisk disk(Folder{{Name, New}});
  filecopy::CopyFile(disk, Name, disk, Name);
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
    filecopy::CopyFile(source, Name, target, Name);
    FAIL() << "the copy went through";
  } catch (const runtime::Failure& failure) {
    EXPECT_EQ(failure.Name, runtime::DiskFull);
  }
}

TEST(FactsOf, AMissingFileIsNamed) {
  MemoryDisk disk(Folder{});
  try {
    filecopy::FactsOf(disk, Name);
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
