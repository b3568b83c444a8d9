// Every disk call of a sort fails in every way: the output is wholly the old or the new one, and the status says which.
#include <gtest/gtest.h>

#include <optional>

#include "runtime/whole_io.h"
#include "store/film_record.h"
#include "tests/kit/faulty_disk.h"
#include "tests/sort/calls.h"
#include "tests/story/sort_reference.h"

namespace sort {
namespace {

using kit::Fault;

constexpr std::string_view OldKeys = "the old keys";

std::string Films() {
  std::string master;
  for (const char* title :
       {"Ran", "solaris", "Brazil", "", "Alien", "SOLARIS", "Zelig", "Babe", "brazil", "M", "Ikiru"}) {
    store::FilmRecord film;
    film.Set(store::FilmField::Title, title);
    film.Set(store::FilmField::Tail, "\r\n");
    master.append(film.Bytes.data(), film.Bytes.size());
  }
  return master;
}

kit::Folder Before() {
  kit::Folder folder = FolderWith(Films());
  folder["Titlepra.Dat"] = OldKeys;
  return folder;
}

const std::string& NewKeys() {
  static const std::string keys = story::SortedPairs(Films(), DeliveredWeights())[0].KeyBytes;
  return keys;
}

// In memory, and through runs of three records.
const Limits BothLimits[] = {{}, {300, 1'000'000}};

std::size_t CallsOf(const Limits& limits) {
  kit::MemoryDisk memory(Before());
  kit::FaultyDisk disk(memory);
  EXPECT_EQ(SortOn(disk, "Titlepra.Dat", TitlesStatement, limits).Status, Status::Done);
  EXPECT_EQ(FileOn(memory, "Titlepra.Dat"), NewKeys());
  return disk.Calls();
}

// Nothing if a failed folder sync stopped it.
std::optional<Result> TrySort(Sorter& sorter) {
  try {
    return SortWith(sorter, "Titlepra.Dat", TitlesStatement);
  } catch (const runtime::Failure&) {
    return std::nullopt;
  }
}

std::optional<Result> TrySortOn(kit::FaultyDisk& disk, const Limits& limits) {
  Sorter sorter(disk, limits);
  return TrySort(sorter);
}

void ExpectSortsAfterwards(kit::MemoryDisk& memory) {
  runtime::RemoveLeftovers(memory);
  ASSERT_EQ(Leftovers(memory), "");
  Result outcome = SortOn(memory, "Titlepra.Dat", TitlesStatement);
  ASSERT_EQ(outcome.Status, Status::Done);
  ASSERT_EQ(FileOn(memory, "Titlepra.Dat"), NewKeys());
}

class EveryCallOfASort : public testing::TestWithParam<Limits> {};

TEST_P(EveryCallOfASort, FailsToAStatusWithTheOldOutput) {
  const std::size_t calls = CallsOf(GetParam());
  for (Fault fault : {Fault::Full, Fault::Error, Fault::Refused, Fault::ShortThenFull}) {
    for (bool from_then_on : {false, true}) {
      for (std::size_t at = 0; at < calls; ++at) {
        SCOPED_TRACE(std::string(NameOf(fault)) + " at call " + std::to_string(at));
        kit::MemoryDisk memory(Before());
        kit::FaultyDisk disk(memory, {fault, at, from_then_on});
        std::optional<Result> outcome = TrySortOn(disk, GetParam());
        bool replaced = !outcome || outcome->Status == Status::Done;
        ASSERT_EQ(FileOn(memory, "Titlepra.Dat"), replaced ? NewKeys() : OldKeys);
        if (outcome) {
          ASSERT_EQ(outcome->Records, replaced ? 10 : 0);
        }
        ASSERT_EQ(FileOn(memory, "Recpra.Dat"), Films());
        ExpectSortsAfterwards(memory);
      }
    }
  }
}

TEST_P(EveryCallOfASort, LeavesNothingAsideAfterAFailureThatGoesBy) {
  const std::size_t calls = CallsOf(GetParam());
  for (std::size_t at = 0; at < calls; ++at) {
    kit::MemoryDisk memory(Before());
    kit::FaultyDisk disk(memory, {Fault::Full, at});
    std::optional<Result> outcome = TrySortOn(disk, GetParam());
    if (outcome && outcome->Status != Status::Done) {
      EXPECT_EQ(Leftovers(memory), "") << "at call " << at;
    }
  }
}

TEST_P(EveryCallOfASort, GoesOnAfterAnInterruptionOrAShortOne) {
  const std::size_t calls = CallsOf(GetParam());
  for (Fault fault : {Fault::Interrupted, Fault::Short}) {
    for (std::size_t at = 0; at < calls; ++at) {
      SCOPED_TRACE(std::string(NameOf(fault)) + " at call " + std::to_string(at));
      kit::MemoryDisk memory(Before());
      kit::FaultyDisk disk(memory, {fault, at, fault == Fault::Short});
      std::optional<Result> outcome = TrySortOn(disk, GetParam());
      ASSERT_TRUE(outcome);
      ASSERT_EQ(outcome->Status, Status::Done);
      ASSERT_EQ(FileOn(memory, "Titlepra.Dat"), NewKeys());
      ASSERT_EQ(Leftovers(memory), "");
    }
  }
}

TEST_P(EveryCallOfASort, IsKilledToTheOldOrTheNewOutput) {
  const std::size_t calls = CallsOf(GetParam());
  for (Fault fault : {Fault::Kill, Fault::KillHalfway}) {
    for (std::size_t at = 0; at < calls; ++at) {
      SCOPED_TRACE(std::string(NameOf(fault)) + " at call " + std::to_string(at));
      kit::MemoryDisk memory(Before());
      kit::FaultyDisk disk(memory, {fault, at});
      ASSERT_THROW(TrySortOn(disk, GetParam()), kit::Killed);
      std::string keys = FileOn(memory, "Titlepra.Dat");
      ASSERT_TRUE(keys == OldKeys || keys == NewKeys());
      ExpectSortsAfterwards(memory);
    }
  }
}

TEST_P(EveryCallOfASort, LosesPowerToTheOldOrTheNewOutput) {
  kit::MemoryDisk memory(Before());
  ASSERT_EQ(SortOn(memory, "Titlepra.Dat", TitlesStatement, GetParam()).Status, Status::Done);
  runtime::SyncFolders(memory, "Titlepra.Dat");
  for (std::size_t moment = 0; moment <= memory.Moments(); ++moment) {
    for (const kit::Folder& folder : memory.AfterPowerLoss(moment, 256)) {
      ASSERT_TRUE(folder.contains("Titlepra.Dat"));
      const std::string& keys = folder.at("Titlepra.Dat");
      ASSERT_TRUE(keys == OldKeys || keys == NewKeys()) << "at moment " << moment;
      ASSERT_EQ(folder.at("Recpra.Dat"), Films());
    }
  }
  for (const kit::Folder& folder : memory.AfterPowerLoss(memory.Moments(), 256))
    ASSERT_EQ(folder.at("Titlepra.Dat"), NewKeys()) << "the caller has synced the folders";
}

// A failure makes the sorter forget what it kept of the previous sort.
TEST_P(EveryCallOfASort, FailsAsWellWhereTheSorterKnowsTheOrder) {
  const std::size_t calls = CallsOf(GetParam());
  for (Fault fault : {Fault::Full, Fault::Error, Fault::ShortThenFull}) {
    for (std::size_t at = calls; at < 2 * calls; ++at) {
      SCOPED_TRACE(std::string(NameOf(fault)) + " at call " + std::to_string(at));
      kit::MemoryDisk memory(Before());
      kit::FaultyDisk disk(memory, {fault, at});
      Sorter sorter(disk, GetParam());
      ASSERT_EQ(TrySort(sorter)->Status, Status::Done);
      runtime::ReplaceFile(memory, "Titlepra.Dat", OldKeys);
      std::optional<Result> outcome = TrySort(sorter);
      bool replaced = !outcome || outcome->Status == Status::Done;
      ASSERT_EQ(FileOn(memory, "Titlepra.Dat"), replaced ? NewKeys() : OldKeys);
      ASSERT_EQ(TrySort(sorter)->Status, Status::Done);
      ASSERT_EQ(FileOn(memory, "Titlepra.Dat"), NewKeys());
    }
  }
}

TEST(FaultOfASort, InTheInputIsStatus2AndInTheOutputStatus4) {
  // The open of the input is the first call.
  kit::MemoryDisk memory(Before());
  kit::FaultyDisk disk(memory, {Fault::Error, 0});
  EXPECT_EQ(TrySortOn(disk, {})->Status, Status::InputUnreadable);
  class ReadlessInput final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
      return NameOf(handle) == "Recpra.Dat" ? -EIO : PassingDisk::ReadAt(handle, target, count, offset);
    }
  };
  ReadlessInput readless(memory);
  EXPECT_EQ(SortOn(readless, "Titlepra.Dat", TitlesStatement).Status, Status::InputUnreadable);
  class FullDisk final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    std::int64_t WriteAt(int, const char*, std::size_t, std::int64_t) override { return -ENOSPC; }
  };
  FullDisk full(memory);
  EXPECT_EQ(SortOn(full, "Titlepra.Dat", TitlesStatement).Status, Status::OutputUnwritable);
  EXPECT_EQ(FileOn(memory, "Titlepra.Dat"), OldKeys);
  EXPECT_EQ(Leftovers(memory), "");
}

INSTANTIATE_TEST_SUITE_P(Sorts, EveryCallOfASort, testing::ValuesIn(BothLimits), [](const auto& limits) {
  return limits.param.MemoryBytes == Limits().MemoryBytes ? "InMemory" : "ThroughRuns";
});

}  // namespace
}  // namespace sort
