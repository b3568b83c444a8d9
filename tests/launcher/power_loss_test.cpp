// A loss of power at any moment of what a start writes: each file is old or new, and no copy is lost for one that may
// not be there.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include "launcher/copies.h"
#include "launcher/delivered_files.h"
#include "launcher/known_collections.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/passing_disk.h"

namespace launcher {
namespace {

using kit::Folder;
using kit::MemoryDisk;
using std::chrono::local_seconds;
using std::chrono::seconds;

constexpr std::size_t MostStates = 64;
const local_seconds Now = std::chrono::local_days(
    std::chrono::year_month_day{std::chrono::year(2026), std::chrono::month(11), std::chrono::day(22)});

// Runs `look` on each state in which a loss of power can leave the disk. The last moment is that after the work.
template <typename Look>
void EachState(const MemoryDisk& disk, Look look) {
  for (std::size_t moment = 0; moment <= disk.Moments(); ++moment) {
    for (const Folder& state : disk.AfterPowerLoss(moment, MostStates)) look(state, moment == disk.Moments());
  }
}

std::string ContentOf(const Folder& folder, const std::string& name) {
  auto found = folder.find(name);
  return found == folder.end() ? "" : found->second;
}

TEST(PowerLossAtAStart, LeavesEachDeliveredFileOldOrNew) {
  const std::string letters(2 * kit::SectorBytes, 'l'), help(3 * kit::SectorBytes, 'h'),
      better(3 * kit::SectorBytes, 'b');
  MemoryDisk first(Folder{{"Reelora4.HLP", help}, {"UPPER.ALT", letters}}), second(Folder{{"Reelora4.HLP", better}});
  MemoryDisk before(Folder{});
  CompleteCollection(first, before);
  Folder start = before.Content();
  start["UPPER.ALT"] = "";
  MemoryDisk collection(start);
  CompleteCollection(first, collection);
  CompleteCollection(second, collection);
  EachState(collection, [&](const Folder& state, bool done) {
    std::string now = ContentOf(state, "Reelora4.HLP"), upper = ContentOf(state, "UPPER.ALT");
    EXPECT_TRUE(now == better || (!done && now == help));
    EXPECT_TRUE(upper == letters || (!done && upper.empty()));
  });
}

TEST(PowerLossAtAStart, LeavesNoPartOfACopyAndNoneTooFew) {
  const std::string films(3 * kit::SectorBytes, 'f');
  Folder before;
  for (int count = 0; count < 10; ++count) before[NameOfCopy(Now - std::chrono::days(3000) - seconds(count))] = "old";
  MemoryDisk collection(Folder{{"Recpra.Dat", films}}), copies(before);
  KeepCopy(collection, copies, Now);
  EachState(copies, [&](const Folder& state, bool done) {
    bool there = state.contains(NameOfCopy(Now));
    EXPECT_TRUE(there || !done);
    if (there) {
      EXPECT_EQ(ContentOf(state, NameOfCopy(Now)), films);
    }
    long copies_left =
        std::ranges::count_if(state, [](const auto& file) { return TimeOfCopy(file.first).has_value(); });
    EXPECT_GE(copies_left, 10) << "an old copy went before the new one was there to stay";
  });
}

TEST(PowerLossAtAStart, NothingIsSupersededByACopyThatIsNotConfirmed) {
  class NoFolderSync final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    int SyncFolder(const std::string&) override { return -EIO; }
  };
  Folder before;
  for (int count = 0; count < 10; ++count) before[NameOfCopy(Now - std::chrono::days(3000) - seconds(count))] = "old";
  MemoryDisk collection(Folder{{"Recpra.Dat", "films"}}), memory(before);
  NoFolderSync copies(memory);
  KeepCopy(collection, copies, Now);
  EXPECT_EQ(memory.Content().size(), 11U);
}

TEST(PowerLossAtAStart, LeavesTheSettingsOldOrNew) {
  const KnownCollections old{{"/" + std::string(kit::SectorBytes, 'o')}, "", {}};
  const KnownCollections next{{"/" + std::string(2 * kit::SectorBytes, 'n')}, "/copies", {}};
  MemoryDisk first(Folder{});
  WriteKnown(first, old);
  MemoryDisk settings(first.Content());
  WriteKnown(settings, next);
  EachState(settings, [&](const Folder& state, bool) {
    MemoryDisk disk(state);
    KnownCollections known = ReadKnown(disk);
    EXPECT_TRUE(known == old || known == next);
  });
}

}  // namespace
}  // namespace launcher
