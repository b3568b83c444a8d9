// A sort that knows the next statement reads for it while its output is synced.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "runtime/whole_io.h"
#include "store/film_record.h"
#include "tests/kit/no_new_threads.h"
#include "tests/sort/calls.h"
#include "tests/story/sort_reference.h"

namespace sort {
namespace {

constexpr int Films = 3000;
// Two workers, and many blocks.
const Limits ManyBlocks = {.TwoWorkersFrom = 1, .BlockBytes = 16 * store::RecordLength};

std::string Master() {
  std::string master;
  for (int film = 0; film < Films; ++film) {
    store::FilmRecord record;
    record.Set(store::FilmField::Title, "Film " + std::to_string(film * 7919 % Films));
    record.Set(store::FilmField::Format, std::string(1, "DLV"[film % 3]));
    record.Set(store::FilmField::Tail, "\r\n");
    master.append(record.Bytes.data(), record.Bytes.size());
  }
  return master;
}

std::string KeysOfPass(std::size_t pass, const std::string& master) {
  return story::SortedPairs(master, DeliveredWeights())[pass].KeyBytes;
}

// Counts the bytes of the master file that are asked for, and can make syncs slow or fail, and reads fail while a sync
// goes on.
class WatchedDisk final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    const bool master = NameOf(handle) == "Recpra.Dat";
    if (master) Asked += static_cast<std::int64_t>(count);
    return master && ReadsFail && Syncing ? -EIO : shared_.ReadAt(handle, target, count, offset);
  }
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    return shared_.WriteAt(handle, source, count, offset);
  }
  // Waits until so much has been asked for.
  int Sync(int handle) override {
    Syncing = true;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (Asked < SyncUntil && std::chrono::steady_clock::now() < end) std::this_thread::yield();
    EXPECT_GE(Asked, SyncUntil) << "nothing was read meanwhile";
    Syncing = false;
    return SyncFails ? -EIO : shared_.Sync(handle);
  }

  std::atomic<std::int64_t> Asked = 0, SyncUntil = 0;
  std::atomic<bool> ReadsFail = false, SyncFails = false, Syncing = false;

 private:
  SharedDisk shared_{Below()};
};

class ReadAhead : public testing::Test {
 protected:
  Status Sort(std::size_t pass, std::size_t next) {
    return SortWith(sorter, "out", StatementOfPass(pass), StatementOfPass(next)).Status;
  }
  void ExpectKeysOfPass(std::size_t pass) {
    EXPECT_TRUE(FileOn(memory, "out") == KeysOfPass(pass, FileOn(memory, "Recpra.Dat"))) << "pass " << pass;
  }
  // The pass of titles, whose sync lasts until half of the films have been read again.
  void SortTitlesReadingHalfAhead() {
    disk.SyncUntil = size * 3 / 2;
    ASSERT_EQ(Sort(0, 1), Status::Done);
    ExpectKeysOfPass(0);
    disk.SyncUntil = 0;
    disk.Asked = 0;
  }

  const std::string master = Master();
  const std::int64_t size = static_cast<std::int64_t>(master.size());
  kit::MemoryDisk memory{FolderWith(master)};
  WatchedDisk disk{memory};
  Sorter sorter{disk, ManyBlocks};
};

TEST_F(ReadAhead, LeavesTheRestToTheNextSort) {
  SortTitlesReadingHalfAhead();
  ASSERT_EQ(Sort(1, 4), Status::Done);
  ExpectKeysOfPass(1);
  EXPECT_LE(disk.Asked, size / 2);
}

TEST_F(ReadAhead, ReadsTheWholeFileOnceForEachSort) {
  for (std::size_t pass = 0; pass < 4; ++pass) {
    disk.SyncUntil = pass < 3 ? size * static_cast<std::int64_t>(pass + 2) : 0;
    ASSERT_EQ(Sort(pass, pass + 1), Status::Done);
    ExpectKeysOfPass(pass);
  }
  EXPECT_EQ(disk.Asked, 4 * size);
}

TEST_F(ReadAhead, IsForgottenIfAnotherSortComes) {
  SortTitlesReadingHalfAhead();
  ASSERT_EQ(Sort(2, 4), Status::Done);
  ExpectKeysOfPass(2);
  EXPECT_EQ(disk.Asked, size);
  ASSERT_EQ(Sort(1, 4), Status::Done);
  ExpectKeysOfPass(1);
  EXPECT_EQ(disk.Asked, 2 * size);
}

TEST_F(ReadAhead, IsForgottenIfTheInputIsReplaced) {
  SortTitlesReadingHalfAhead();
  std::string other = master;
  other.replace(265, 1, "L");  // the first film's format, already read
  runtime::ReplaceFile(memory, "Recpra.Dat", other);
  ASSERT_EQ(Sort(1, 4), Status::Done);
  ExpectKeysOfPass(1);
}

TEST_F(ReadAhead, IsForgottenIfTheInputHasAnotherTime) {
  SortTitlesReadingHalfAhead();
  runtime::OpenFile input(memory, "Recpra.Dat", runtime::Disk::Mode::ReadWrite);
  input.Write("L", 265);
  input.SetModified({1'700'000'000, 0});
  ASSERT_EQ(Sort(1, 4), Status::Done);
  ExpectKeysOfPass(1);
}

TEST_F(ReadAhead, LeavesAFailedReadToTheNextSort) {
  disk.ReadsFail = true;
  ASSERT_EQ(Sort(0, 1), Status::Done);
  ExpectKeysOfPass(0);
  disk.ReadsFail = false;
  ASSERT_EQ(Sort(1, 4), Status::Done);
  ExpectKeysOfPass(1);
}

TEST_F(ReadAhead, DoesNotHideAFailedSync) {
  disk.SyncUntil = size * 2;
  disk.SyncFails = true;
  EXPECT_EQ(Sort(0, 1), Status::OutputUnwritable);
  EXPECT_FALSE(memory.Content().contains("out"));
  EXPECT_EQ(Leftovers(memory), "");
  disk.SyncFails = false;
  disk.SyncUntil = 0;
  ASSERT_EQ(Sort(1, 4), Status::Done);
  ExpectKeysOfPass(1);
}

TEST_F(ReadAhead, ComesBeforeTheSyncIfTheSystemRefusesThreads) {
  const kit::NoNewThreads refused;
  disk.SyncUntil = size * 2;
  ASSERT_EQ(Sort(0, 1), Status::Done);
  disk.SyncUntil = 0;
  ASSERT_EQ(Sort(1, 4), Status::Done);
  ExpectKeysOfPass(1);
  EXPECT_EQ(disk.Asked, size * 2);
}

}  // namespace
}  // namespace sort
