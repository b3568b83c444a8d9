// Recovery finishes what is ours and leaves alone what is not; the history keeps what an overwrite takes.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

#include "runtime/record_journal.h"
#include "store/film_record.h"
#include "store/history.h"
#include "tests/kit/films.h"
#include "tests/kit/passing_disk.h"
#include "tests/kit/refusing_disk.h"

namespace safety {
namespace {

using runtime::Disk;
using runtime::OpenFile;
using runtime::RecordJournal;

const std::string Master = "Recpra.Dat";
const std::string Journal = runtime::InSafetyFolder("journal");
const std::string History = runtime::InSafetyFolder("history");

void Write(Disk& disk, int slot, const std::string& record) {
  OpenFile file(disk, Master, Disk::Mode::Create);
  RecordJournal(disk).Write(file, slot, record, store::KeepOverwritten);
}

// The folder that a write of version 1 into slot 7 of eight films leaves.
kit::Folder Written() {
  kit::MemoryDisk disk(kit::Folder{{Master, kit::Films(1, 8)}});
  Write(disk, 7, kit::FilmBytes(7, 1));
  return disk.Content();
}

// The master file after an opening of the folder with that master file in it.
std::string Recovered(kit::Folder folder, const std::string& master) {
  folder[Master] = master;
  kit::MemoryDisk disk(folder);
  OpenFile file(disk, Master, Disk::Mode::Create);
  RecordJournal(disk).Recover(file, store::RecordLength);
  return disk.Content().at(Master);
}

std::string With(std::string master, int slot, const std::string& record) {
  return master.replace(static_cast<std::size_t>(slot - 1) * store::RecordLength, record.size(), record);
}

const std::string Mixed = kit::FilmBytes(7, 1).substr(0, 300) + kit::FilmBytes(7, 0).substr(300);

TEST(Recovery, FinishesARecordTornAtAnyByte) {
  std::string old_record = kit::FilmBytes(7, 0), new_record = kit::FilmBytes(7, 1);
  for (std::size_t torn = 1; torn < new_record.size(); ++torn) {
    std::string mixed = new_record.substr(0, torn) + old_record.substr(torn);
    std::string master = Recovered(Written(), With(kit::Films(1, 8), 7, mixed));
    bool is_old = mixed == old_record;
    ASSERT_EQ(master, With(kit::Films(1, 8), 7, is_old ? old_record : new_record)) << torn;
  }
}

TEST(Recovery, LeavesTheOldAndTheNewRecord) {
  EXPECT_EQ(Recovered(Written(), kit::Films(1, 8)), kit::Films(1, 8));
  kit::MemoryDisk disk(Written());
  OpenFile file(disk, Master, Disk::Mode::Create);
  RecordJournal(disk).Recover(file, store::RecordLength);
  EXPECT_EQ(disk.Content(), Written());
  EXPECT_EQ(disk.Moments(), 1U) << "something beside the sync";
}

TEST(Recovery, LeavesARestoredBackupAlone) {
  std::string torn = kit::FilmBytes(7, 1).substr(0, 300) + kit::FilmBytes(7, 2).substr(300);
  EXPECT_EQ(Recovered(Written(), With(kit::Films(1, 8), 7, torn)), With(kit::Films(1, 8), 7, torn));
  EXPECT_EQ(Recovered(Written(), kit::Films(1, 6)), kit::Films(1, 6));
  EXPECT_EQ(Recovered(Written(), kit::Films(1, 9)), kit::Films(1, 9));
  EXPECT_EQ(Recovered(Written(), kit::Films(1, 7) + "x"), kit::Films(1, 7) + "x");
  for (int films : {7, 9}) {
    std::string longer_or_shorter = With(kit::Films(1, films), 7, Mixed);
    EXPECT_EQ(Recovered(Written(), longer_or_shorter), longer_or_shorter);
  }
}

// The journal with a number at that place of its head, and the sum that belongs to it.
std::string Forged(std::string journal, std::size_t place, std::int64_t number) {
  std::memcpy(journal.data() + place, &number, sizeof number);
  std::uint64_t sum = 0xCBF29CE484222325;
  for (std::size_t index = 0; index + sizeof sum < journal.size(); ++index)
    sum = (sum ^ static_cast<unsigned char>(journal[index])) * 0x100000001B3;
  std::memcpy(journal.data() + journal.size() - sizeof sum, &sum, sizeof sum);
  return journal;
}

TEST(Recovery, LeavesTheBlockOfAnotherFormatAlone) {
  constexpr std::size_t SlotPlace = 40;
  const std::string master = With(kit::Films(1, 8), 7, Mixed);
  kit::Folder folder = Written();
  ASSERT_EQ(Forged(folder[Journal], SlotPlace, 7), folder[Journal]);
  folder[Journal] = Forged(folder[Journal], 0, 0);
  EXPECT_EQ(Recovered(folder, master), master);
}

// Passing over it would leave the torn record, and the next write would take the block's place.
TEST(Recovery, FailsWhereTheJournalCannotBeRead) {
  kit::MemoryDisk memory(Written());
  kit::RefusingDisk disk(memory, Journal);
  OpenFile file(disk, Master, Disk::Mode::Create);
  EXPECT_THROW(RecordJournal(disk).Recover(file, store::RecordLength), runtime::Failure);
}

TEST(Recovery, CutsAnAppendThatStoppedShortAndNothingElse) {
  kit::MemoryDisk disk(kit::Folder{{Master, kit::Films(1, 6)}});
  Write(disk, 7, kit::FilmBytes(7, 1));
  const kit::Folder appended = disk.Content();
  for (std::size_t part = 0; part < store::RecordLength; ++part)
    ASSERT_EQ(Recovered(appended, kit::Films(1, 6) + kit::FilmBytes(7, 1).substr(0, part)), kit::Films(1, 6)) << part;
  std::string other = kit::FilmBytes(7, 5).substr(0, 400);
  EXPECT_EQ(Recovered(appended, kit::Films(1, 6) + other), kit::Films(1, 6) + other);
}

TEST(Recovery, PassesOverAJournalThatIsNotWhole) {
  const std::string mixed = With(kit::Films(1, 8), 7, Mixed);
  const std::string whole = Written().at(Journal);
  for (std::size_t place = 0; place < whole.size(); ++place) {
    kit::Folder cut = Written(), garbled = Written();
    cut[Journal] = whole.substr(0, place);
    garbled[Journal][place] = static_cast<char>(whole[place] ^ 4);
    ASSERT_EQ(Recovered(cut, mixed), mixed) << place;
    ASSERT_EQ(Recovered(garbled, mixed), mixed) << place;
  }
}

TEST(Recovery, LeavesAnotherFileAlone) {
  const std::string mixed = With(kit::Films(1, 8), 7, Mixed);
  kit::Folder folder = Written();
  folder["Other.Dat"] = mixed;
  kit::MemoryDisk disk(folder);
  OpenFile file(disk, "Other.Dat", Disk::Mode::Create);
  RecordJournal(disk).Recover(file, store::RecordLength);
  EXPECT_EQ(disk.Content(), folder);
}

TEST(History, KeepsTheFilmThatIsOverwritten) {
  std::string history = Written().at(History);
  ASSERT_EQ(history.size(), static_cast<std::size_t>(store::HistoryHeadLength + store::RecordLength));
  EXPECT_EQ(history.substr(19, 9), " 0000007 ");
  EXPECT_EQ(history.substr(store::HistoryHeadLength), kit::FilmBytes(7, 0));
}

TEST(History, KeepsNeitherAFreeSlotNorTheSameFilm) {
  std::string free_slot(store::RecordLength, ' ');
  kit::MemoryDisk disk(kit::Folder{{Master, With(kit::Films(1, 8), 7, free_slot)}});
  Write(disk, 7, kit::FilmBytes(7, 1));
  Write(disk, 7, kit::FilmBytes(7, 1));
  Write(disk, 9, kit::FilmBytes(9, 1));
  EXPECT_EQ(disk.Content().at(History), "");
}

TEST(History, PutsTheNextEntryOverATornOne) {
  kit::Folder folder = Written();
  std::string first = folder[History];
  folder[History] += first.substr(0, 100);
  kit::MemoryDisk disk(folder);
  Write(disk, 8, kit::FilmBytes(8, 1));
  std::string history = disk.Content().at(History);
  ASSERT_EQ(history.size(), 2 * first.size());
  EXPECT_EQ(history.substr(0, first.size()), first);
  EXPECT_EQ(history.substr(first.size() + store::HistoryHeadLength), kit::FilmBytes(8, 0));
}

TEST(RecordJournal, RefusesASlotThatLiesFarBehindTheFile) {
  kit::MemoryDisk disk(kit::Folder{{Master, kit::Films(1, 8)}});
  try {
    Write(disk, 9'999'999, kit::FilmBytes(1, 1));
    FAIL() << "no failure";
  } catch (const runtime::Failure& failure) {
    EXPECT_EQ(failure.Name, runtime::BadRecordNumber);
  }
  EXPECT_EQ(disk.Content(), (kit::Folder{{Master, kit::Films(1, 8)}}));
}

TEST(RecordJournal, PutsBlanksBetweenTheEndAndTheSlot) {
  kit::MemoryDisk disk(kit::Folder{{Master, kit::Films(1, 2)}});
  Write(disk, 5, kit::FilmBytes(5, 1));
  EXPECT_EQ(disk.Content().at(Master),
            kit::Films(1, 2) + std::string(2 * store::RecordLength, ' ') + kit::FilmBytes(5, 1));
}

// A run that was killed may have made the files and not have synced the folders.
TEST(RecordJournal, SyncsTheFoldersAtTheFirstWriteAfterEachOpening) {
  class Counting final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    int SyncFolder(const std::string& name) override {
      Synced.push_back(name);
      return kit::PassingDisk::SyncFolder(name);
    }
    std::vector<std::string> Synced;
  };
  kit::MemoryDisk memory(Written());
  Counting disk(memory);
  RecordJournal journal(disk);
  OpenFile file(disk, Master, Disk::Mode::Create);
  const std::vector<std::string> both = {".reelora", ""}, both_twice = {".reelora", "", ".reelora", ""};
  for (int version : {2, 3}) journal.Write(file, 7, kit::FilmBytes(7, version));
  EXPECT_EQ(disk.Synced, both);
  journal.Recover(file, store::RecordLength);
  journal.Write(file, 7, kit::FilmBytes(7, 4));
  EXPECT_EQ(disk.Synced, both_twice);
}

// A failed sync that is tried again may report success for what the disk has dropped.
TEST(RecordJournal, SyncsTheRecordOnlyOnceWhenThatFails) {
  class FailingOnce final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    int Sync(int handle) override {
      if (NameOf(handle) != Master) return kit::PassingDisk::Sync(handle);
      return ++Syncs == 1 ? -EIO : kit::PassingDisk::Sync(handle);
    }
    int Syncs = 0;
  };
  kit::MemoryDisk memory(kit::Folder{{Master, kit::Films(1, 8)}});
  FailingOnce disk(memory);
  EXPECT_THROW(Write(disk, 7, kit::FilmBytes(7, 1)), runtime::Failure);
  EXPECT_EQ(disk.Syncs, 1);
  EXPECT_EQ(memory.Content().at(Master), kit::Films(1, 8));
}

}  // namespace
}  // namespace safety
