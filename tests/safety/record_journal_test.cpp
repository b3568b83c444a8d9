// Recovery finishes what is ours and leaves alone what is not; the history keeps what an overwrite takes.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <cstring>

#include "runtime/journal_block.h"
#include "runtime/record_journal.h"
#include "store/film_record.h"
#include "store/history.h"
#include "tests/kit/films.h"
#include "tests/kit/passing_disk.h"
#include "tests/kit/refusing_disk.h"
#include "tests/safety/disabled_safeguard.h"

namespace safety {
namespace {

using runtime::Disk;
using runtime::OpenFile;
using runtime::RecordJournal;
using runtime::SettledFile;

const std::string Master = "Recpra.Dat";
const std::string Journal = runtime::InSafetyFolder("journal");
const std::string History = runtime::InSafetyFolder("history");

void Write(Disk& disk, int slot, const std::string& record) {
  OpenFile file(disk, Master, Disk::Mode::Create);
  RecordJournal(disk).Write(file, slot, record, store::KeepOverwritten);
}

// The folder that a write of version 1 into a slot leaves if the program is stopped just before the block is marked.
kit::Folder Stopped(const std::string& master, int slot) {
  kit::MemoryDisk disk(kit::Folder{{Master, master}});
  DisabledSafeguard unmarked(disk, Safeguard::DoneMark);
  Write(unmarked, slot, kit::FilmBytes(slot, 1));
  return disk.Content();
}

// In slot 7 of eight films.
kit::Folder Written() { return Stopped(kit::Films(1, 8), 7); }

// As those see the file who only read it.
std::string ReadSettled(Disk& disk, const OpenFile& file, std::size_t at_once) {
  const SettledFile settled(disk, file, store::RecordLength);
  std::string bytes, part(at_once, '\0');
  std::size_t read = 0;
  do {
    read = settled.Read(part.data(), at_once, std::ssize(bytes));
    bytes.append(part, 0, read);
  } while (read == at_once);
  EXPECT_EQ(settled.Length(), std::ssize(bytes));
  return bytes;
}

// The master file after an opening of the folder with that master file in it. Until then it reads as if it were so.
std::string Recovered(kit::Folder folder, const std::string& master) {
  folder[Master] = master;
  kit::MemoryDisk disk(folder);
  OpenFile file(disk, Master, Disk::Mode::Create);
  const std::string settled = ReadSettled(disk, file, 1 << 14);
  EXPECT_EQ(ReadSettled(disk, file, 501), settled);
  EXPECT_EQ(disk.Moments(), 0U);
  RecordJournal(disk).Recover(file, store::RecordLength);
  EXPECT_EQ(settled, disk.Content().at(Master));
  return disk.Content().at(Master);
}

std::string With(std::string master, int slot, const std::string& record) {
  return master.replace(static_cast<std::size_t>(slot - 1) * store::RecordLength, record.size(), record);
}

// The bytes of slot 7 up to the border of the sectors that it lies on.
constexpr std::size_t ToBorder = 4096 - 6 * store::RecordLength;
const std::string Mixed = kit::FilmBytes(7, 1).substr(0, ToBorder) + kit::FilmBytes(7, 0).substr(ToBorder);

// The record with those of its sectors new whose bits are set.
std::string WithSectors(int slot, unsigned are_new) {
  std::string record = kit::FilmBytes(slot, 0);
  const std::string new_record = kit::FilmBytes(slot, 1);
  const std::size_t offset = static_cast<std::size_t>(slot - 1) * store::RecordLength;
  for (std::size_t index = 0; index < record.size(); ++index) {
    const std::size_t sector = (offset + index) / kit::SectorBytes - offset / kit::SectorBytes;
    if ((are_new >> sector & 1) != 0) record[index] = new_record[index];
  }
  return record;
}

// Slot 4 lies on three sectors, slot 7 on two.
TEST(Recovery, FinishesARecordWhoseSectorsAreOldOrNew) {
  for (int slot : {4, 7}) {
    const std::string films = kit::Films(1, 8);
    for (unsigned are_new = 0; are_new < 8; ++are_new) {
      const std::string torn = WithSectors(slot, are_new);
      const std::string& expected = torn == kit::FilmBytes(slot, 0) ? torn : kit::FilmBytes(slot, 1);
      ASSERT_EQ(Recovered(Stopped(films, slot), With(films, slot, torn)), With(films, slot, expected)) << are_new;
    }
  }
}

// No stop does that; another program may.
TEST(Recovery, LeavesARecordAloneThatMixesBothInsideASector) {
  const std::string old_record = kit::FilmBytes(7, 0), new_record = kit::FilmBytes(7, 1);
  int tested = 0;
  for (std::size_t torn = 1; torn < new_record.size(); ++torn) {
    const std::string mixed = new_record.substr(0, torn) + old_record.substr(torn);
    if (mixed == WithSectors(7, 0) || mixed == WithSectors(7, 1) || mixed == WithSectors(7, 3)) continue;
    ++tested;
    ASSERT_EQ(Recovered(Written(), With(kit::Films(1, 8), 7, mixed)), With(kit::Films(1, 8), 7, mixed)) << torn;
  }
  EXPECT_GT(tested, 300);
}

TEST(Recovery, PassesOverABlockThatIsDone) {
  kit::MemoryDisk disk(kit::Folder{{Master, kit::Films(1, 8)}});
  Write(disk, 7, kit::FilmBytes(7, 1));
  const std::string mixed = With(kit::Films(1, 8), 7, Mixed);
  EXPECT_EQ(Recovered(disk.Content(), mixed), mixed);
  EXPECT_NE(Recovered(Written(), mixed), mixed);
}

TEST(Recovery, LeavesTheOldAndTheNewRecordAndMarksTheBlock) {
  for (int version : {0, 1}) {
    kit::Folder folder = Written();
    folder[Master] = With(kit::Films(1, 8), 7, kit::FilmBytes(7, version));
    kit::MemoryDisk disk(folder);
    OpenFile file(disk, Master, Disk::Mode::Create);
    RecordJournal(disk).Recover(file, store::RecordLength);
    EXPECT_EQ(disk.Content().at(Master), folder.at(Master));
    EXPECT_EQ(disk.Content().at(Journal).substr(0, 8), "REELDONE");
    const std::size_t moments = disk.Moments();
    RecordJournal(disk).Recover(file, store::RecordLength);
    EXPECT_EQ(disk.Moments(), moments) << "a block that is done is recovered once more";
  }
}

TEST(Recovery, LeavesARestoredBackupAlone) {
  std::string torn = kit::FilmBytes(7, 1).substr(0, ToBorder) + kit::FilmBytes(7, 2).substr(ToBorder);
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

TEST(Recovery, PassesOverMadNumbers) {
  constexpr std::size_t SlotPlace = 40, LengthPlace = 48, WidthPlace = 56;
  const std::string master = With(kit::Films(1, 8), 7, Mixed);
  const kit::Folder written = Written();
  ASSERT_NE(Recovered(written, master), master);
  for (std::size_t place : {SlotPlace, LengthPlace, WidthPlace}) {
    for (std::int64_t number : {std::int64_t{0}, std::int64_t{-1}, INT64_MIN, INT64_MAX,
                                INT64_MAX / store::RecordLength, std::int64_t{1} << 40}) {
      kit::Folder folder = written;
      folder[Journal] = Forged(folder[Journal], place, number);
      ASSERT_EQ(Recovered(folder, master), master) << "at " << place << ": " << number;
    }
  }
}

// Passing over it would leave the torn record, and the next write would take the block's place.
TEST(Recovery, FailsWhereTheJournalCannotBeRead) {
  kit::MemoryDisk memory(Written());
  kit::RefusingDisk disk(memory, Journal);
  OpenFile file(disk, Master, Disk::Mode::Create);
  EXPECT_THROW(RecordJournal(disk).Recover(file, store::RecordLength), runtime::Failure);
}

TEST(Recovery, CutsAnAppendThatStoppedShortAndNothingElse) {
  const kit::Folder appended = Stopped(kit::Films(1, 6), 7);
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

TEST(Recovery, LeavesAFileAloneThatIsCutWhileItIsCompared) {
  class Cutting final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
      if (NameOf(handle) == Master) PassingDisk::Truncate(handle, 40);
      return PassingDisk::ReadAt(handle, target, count, offset);
    }
  };
  kit::Folder folder = Written();
  folder[Master] = With(kit::Films(1, 8), 7, Mixed);
  kit::MemoryDisk memory(folder);
  Cutting disk(memory);
  const OpenFile file(disk, Master, Disk::Mode::Create);
  RecordJournal(disk).Recover(file, store::RecordLength);
  EXPECT_EQ(memory.Content().at(Master), folder.at(Master).substr(0, 40));
  EXPECT_EQ(memory.Content().at(Journal), folder.at(Journal));
}

// A gap is written and compared in pieces of 64 KiB.
TEST(Recovery, TakesAStoppedAppendBackWhoseGapHasManyPieces) {
  const std::string films = kit::Films(1, 2);
  const kit::Folder appended = Stopped(films, 300);
  const std::string whole = films + std::string(297 * store::RecordLength, ' ') + kit::FilmBytes(300, 1);
  EXPECT_EQ(appended.at(Master), whole);
  for (std::size_t part : {1000U, 70'000U, 140'000U})
    EXPECT_EQ(Recovered(appended, whole.substr(0, films.size() + part)), films);
  std::string other = whole;
  other[70'000] = 'x';
  EXPECT_EQ(Recovered(appended, other), other);
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
  EXPECT_FALSE(disk.Content().contains(History));
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

TEST(Recovery, KnowsTheWidestGap) {
  constexpr std::int64_t LastSlot = runtime::WidestGap / store::RecordLength + 1;
  kit::Folder folder = Stopped("", 1);
  for (std::int64_t slot : {LastSlot, LastSlot + 1}) {
    folder[Journal] = Forged(folder[Journal], 40, slot);
    kit::MemoryDisk disk(folder);
    EXPECT_EQ(runtime::ReadJournal(disk, Master, store::RecordLength).Block.has_value(), slot == LastSlot);
  }
}

TEST(RecordJournal, PutsBlanksBetweenTheEndAndTheSlot) {
  kit::MemoryDisk disk(kit::Folder{{Master, kit::Films(1, 2)}});
  Write(disk, 5, kit::FilmBytes(5, 1));
  EXPECT_EQ(disk.Content().at(Master),
            kit::Films(1, 2) + std::string(2 * store::RecordLength, ' ') + kit::FilmBytes(5, 1));
}

class CountingFolders final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int SyncFolder(const std::string& name) override {
    Synced.push_back(name);
    return kit::PassingDisk::SyncFolder(name);
  }
  std::vector<std::string> Synced;
};

// A run that was stopped may have made the files and not have synced the folders; one that has marked a block has.
TEST(RecordJournal, SyncsTheFoldersUnlessAnEarlierRunDid) {
  const std::vector<std::string> none, both = {".reelora", ""};
  kit::MemoryDisk fresh(kit::Folder{{Master, kit::Films(1, 8)}});
  for (const std::vector<std::string>& expected : {both, none}) {
    CountingFolders disk(fresh);
    RecordJournal journal(disk);
    OpenFile file(disk, Master, Disk::Mode::Create);
    journal.Recover(file, store::RecordLength);
    for (int version : {2, 3}) journal.Write(file, 7, kit::FilmBytes(7, version), store::KeepOverwritten);
    EXPECT_EQ(disk.Synced, expected);
  }
  kit::MemoryDisk stopped(Written());
  CountingFolders disk(stopped);
  RecordJournal journal(disk);
  OpenFile file(disk, Master, Disk::Mode::Create);
  journal.Recover(file, store::RecordLength);
  EXPECT_EQ(disk.Synced, both);
  journal.Write(file, 7, kit::FilmBytes(7, 4), store::KeepOverwritten);
  EXPECT_EQ(disk.Synced, both);
}

// What another program has done to the safety folder in the meantime is not known to last.
TEST(RecordJournal, SyncsTheFoldersForAJournalThatWasRemovedOrIsNotWhole) {
  kit::MemoryDisk disk(Written());
  RecordJournal journal(disk);
  OpenFile file(disk, Master, Disk::Mode::Create);
  journal.Recover(file, store::RecordLength);
  disk.Remove(Journal);
  disk.SyncFolder(".reelora");
  journal.Write(file, 7, kit::FilmBytes(7, 2), store::KeepOverwritten);
  for (const kit::Folder& state : disk.AfterPowerLoss(disk.Moments(), 64)) EXPECT_TRUE(state.contains(Journal));

  const std::string whole = Written().at(Journal);
  for (const std::string& found : {whole.substr(0, 40), Forged(whole, 40, -1)}) {
    kit::Folder folder = Written();
    folder[Journal] = found;
    kit::MemoryDisk other(folder);
    CountingFolders counting(other);
    RecordJournal again(counting);
    OpenFile master(counting, Master, Disk::Mode::Create);
    again.Recover(master, store::RecordLength);
    again.Write(master, 7, kit::FilmBytes(7, 2), store::KeepOverwritten);
    EXPECT_EQ(counting.Synced, (std::vector<std::string>{".reelora", ""}));
  }
}

// A backup that was restored under a block of ours.
TEST(RecordJournal, SyncsTheFoldersAfterABlockThatIsLeftAlone) {
  kit::Folder folder = Written();
  folder[Master] = kit::Films(1, 3) + std::string(5 * store::RecordLength, 'x');
  kit::MemoryDisk memory(folder);
  CountingFolders disk(memory);
  RecordJournal journal(disk);
  OpenFile file(disk, Master, Disk::Mode::Create);
  journal.Recover(file, store::RecordLength);
  EXPECT_EQ(disk.Synced, std::vector<std::string>());
  journal.Write(file, 1, kit::FilmBytes(1, 2), store::KeepOverwritten);
  EXPECT_EQ(disk.Synced, (std::vector<std::string>{".reelora", ""}));
}

TEST(RecordJournal, SyncsTheFoldersForAnEmptyMasterFileAndANewHistory) {
  kit::MemoryDisk disk(kit::Folder{{Master, kit::Films(1, 8)}});
  Write(disk, 7, kit::FilmBytes(7, 1));
  disk.Remove(History);
  disk.SyncFolder(".reelora");
  RecordJournal journal(disk);
  OpenFile file(disk, Master, Disk::Mode::Create);
  journal.Recover(file, store::RecordLength);
  journal.Write(file, 7, kit::FilmBytes(7, 2), store::KeepOverwritten);
  for (const kit::Folder& state : disk.AfterPowerLoss(disk.Moments(), 64)) EXPECT_TRUE(state.contains(History));

  disk.Remove(Master);
  disk.SyncFolder("");
  OpenFile again(disk, Master, Disk::Mode::Create);
  journal.Recover(again, store::RecordLength);
  journal.Write(again, 1, kit::FilmBytes(1, 2), store::KeepOverwritten);
  for (const kit::Folder& state : disk.AfterPowerLoss(disk.Moments(), 64)) EXPECT_TRUE(state.contains(Master));
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
