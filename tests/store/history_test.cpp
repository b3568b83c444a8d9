// The history keeps a film that the end of the file cuts off, and its entries never change their length.
#include "store/history.h"

#include <gtest/gtest.h>

#include "store/master_file.h"
#include "tests/kit/memory_disk.h"

namespace store {
namespace {

using kit::Folder;
using kit::MemoryDisk;

const std::string Master(MasterFileName);

FilmRecord Film(std::string_view title) {
  FilmRecord film;
  film.Set(FilmField::Title, title);
  film.Set(FilmField::Tail, "\r\n");
  return film;
}

std::string BytesOf(const FilmRecord& film) { return {film.Bytes.data(), film.Bytes.size()}; }

void Save(runtime::Disk& disk, std::int64_t slot, std::string_view title) {
  runtime::Files files(disk);
  OpenMaster(files, 1);
  WriteRecord(files, 1, slot, Film(title));
}

// A master file of two films of which the second is cut off after that many bytes.
Folder CutOff(int bytes) { return {{Master, BytesOf(Film("Alien")) + BytesOf(Film("Solaris")).substr(0, bytes)}}; }

TEST(History, KeepsAFilmThatTheFileCutsOff) {
  for (int bytes : {RecordLength - 1, 40, 7}) {
    MemoryDisk disk(CutOff(bytes));
    Save(disk, 2, "Brazil");
    std::vector<KeptFilm> films = ReadHistory(disk);
    ASSERT_EQ(films.size(), 1U) << bytes;
    EXPECT_EQ(films[0].Slot, 2);
    std::string expected = BytesOf(Film("Solaris")).substr(0, bytes);
    expected.resize(RecordLength, ' ');
    EXPECT_EQ(BytesOf(films[0].Film), expected) << bytes;
  }
}

TEST(History, DoesNotKeepABlankPartOfASlot) {
  MemoryDisk disk(Folder{{Master, BytesOf(Film("Alien")) + std::string(100, ' ')}});
  Save(disk, 2, "Brazil");
  Save(disk, 3, "Ran");
  EXPECT_TRUE(ReadHistory(disk).empty());
}

TEST(History, PutsAFilmBackIntoASlotThatTheFileCutsOff) {
  MemoryDisk disk(CutOff(RecordLength));
  Save(disk, 2, "Brazil");
  KeptFilm solaris = ReadHistory(disk).at(0);
  {
    runtime::OpenFile master(disk, Master, runtime::Disk::Mode::ReadWrite);
    master.Truncate(2 * RecordLength - 1);
  }
  runtime::Files files(disk);
  PutBack(files, solaris);
  EXPECT_EQ(disk.Content().at(Master), BytesOf(Film("Alien")) + BytesOf(Film("Solaris")));
  EXPECT_EQ(ReadHistory(disk).at(1).Film.Get(FilmField::Title), Film("Brazil").Get(FilmField::Title));
}

TEST(History, RefusesASlotPastTheEnd) {
  MemoryDisk disk(CutOff(RecordLength));
  runtime::Files files(disk);
  try {
    PutBack(files, {1, "", 3, Film("Ran")});
    FAIL() << "no failure";
  } catch (const runtime::Failure& failure) {
    EXPECT_EQ(failure.Name, runtime::BadRecordNumber);
  }
}

TEST(History, HasHeadsOfOneLengthForEverySlotAndYear) {
  using namespace std::chrono;
  const local_seconds now = local_days(2026y / 11 / 21) + hours(5) + minutes(30);
  EXPECT_EQ(HistoryHead(now, 7), "2026-11-21 05:30:00 0000007 ");
  EXPECT_EQ(HistoryHead(now, 9'999'999), "2026-11-21 05:30:00 9999999 ");
  EXPECT_EQ(HistoryHead(now, 10'000'000), "2026-11-21 05:30:00 10000000");
  EXPECT_EQ(HistoryHead(now, 999'999'999), "2026-11-21 05:30:00999999999");
  EXPECT_EQ(HistoryHead(local_days(year(10000) / 1 / 1), 7), "9999-12-31 23:59:59 0000007 ");
  EXPECT_EQ(HistoryHead(local_days(year(-5) / 1 / 1), 7), "0000-01-01 00:00:00 0000007 ");
  EXPECT_THROW(HistoryHead(now, 1'000'000'000), runtime::Failure);
}

TEST(History, PassesOverEntriesWhoseSlotIsNoNumber) {
  constexpr int SlotPlace = 20;
  const std::string entry = "2026-11-21 05:30:00 0000002 " + BytesOf(Film("Solaris"));
  for (char wrong : {'/', ':', 'A', '\0', '-', ' '}) {
    std::string garbled = entry;
    garbled[SlotPlace + 3] = wrong;
    MemoryDisk disk(Folder{{".reelora/history", garbled + entry}});
    std::vector<KeptFilm> films = ReadHistory(disk);
    ASSERT_EQ(films.size(), 1U) << wrong;
    EXPECT_EQ(films[0].Number, 2);
    EXPECT_EQ(films[0].Slot, 2);
    EXPECT_FALSE(ReadKeptFilm(disk, 1));
  }
}

TEST(History, HasNoEntryOutsideItsNumbers) {
  MemoryDisk empty(Folder{}), disk(CutOff(RecordLength));
  EXPECT_FALSE(ReadKeptFilm(empty, 1));
  Save(disk, 2, "Brazil");
  EXPECT_TRUE(ReadKeptFilm(disk, 1));
  for (std::int64_t number : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{2}, INT64_MIN, INT64_MAX})
    EXPECT_FALSE(ReadKeptFilm(disk, number)) << number;
}

TEST(History, StaysInStepAfterLongSlotNumbers) {
  const std::vector<std::int64_t> slots = {1, 10'000'000, 123'456'789, 2};
  MemoryDisk disk(Folder{});
  runtime::MakeSafetyFolder(disk);
  for (std::int64_t slot : slots)
    KeepOverwritten(disk, slot, BytesOf(Film("Film " + std::to_string(slot))), BytesOf(Film("Ran")));
  std::vector<KeptFilm> films = ReadHistory(disk);
  ASSERT_EQ(films.size(), slots.size());
  for (std::size_t entry = 0; entry < slots.size(); ++entry) {
    EXPECT_EQ(films[entry].Slot, slots[entry]);
    EXPECT_EQ(films[entry].Film.Bytes, Film("Film " + std::to_string(slots[entry])).Bytes);
  }
}

}  // namespace
}  // namespace store
