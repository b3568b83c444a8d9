// Which copies stay, and that a copy is made when the films changed, whatever fails.
#include "launcher/copies.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/failure.h"
#include "store/master_file.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"

namespace launcher {
namespace {

using kit::Folder;
using kit::MemoryDisk;
using std::chrono::days;
using std::chrono::hours;
using std::chrono::local_seconds;
using std::chrono::seconds;

const local_seconds Now = std::chrono::local_days(std::chrono::year_month_day{
                              std::chrono::year(2026), std::chrono::month(11), std::chrono::day(22)}) +
                          hours(12);
const std::string Master = "Recpra.Dat";

std::vector<std::string> NamesOf(const Folder& folder) {
  std::vector<std::string> names;
  for (const auto& [name, content] : folder) names.push_back(name);
  return names;
}

TEST(NameOfCopy, HoldsTheTimeAndIsReadBack) {
  EXPECT_EQ(NameOfCopy(Now), "Recpra 2026-11-22 12-00-00.Dat");
  EXPECT_EQ(TimeOfCopy("Recpra 2026-11-22 12-00-00.Dat"), Now);
}

TEST(TimeOfCopy, OtherNamesAreNoCopies) {
  for (const char* name : {"Recpra.Dat", "Recpra 2026-11-22 12-00-00.Dat.old", "Recpra 2026-02-30 12-00-00.Dat",
                           "Recpra 2026-11-22 24-00-00.Dat", "Recpra 2026-11-22 1-00-00.Dat", "", "notes.txt"})
    EXPECT_EQ(TimeOfCopy(name), std::nullopt) << name;
}

TEST(Superseded, TheLastTenStayHoweverOldTheyAre) {
  std::vector<std::string> names;
  names.reserve(11);
  for (int count = 0; count < 11; ++count) names.push_back(NameOfCopy(Now - days(3000) - seconds(count)));
  EXPECT_EQ(Superseded(names, Now), std::vector<std::string>{NameOfCopy(Now - days(3000) - seconds(10))});
}

TEST(Superseded, OneADayStaysForAMonthAndOneAMonthForAYear) {
  std::vector<std::string> names;
  names.reserve(24 * 800);
  for (int hour = 0; hour < 24 * 800; ++hour) names.push_back(NameOfCopy(Now - hours(hour)));
  std::vector<std::string> gone = Superseded(names, Now);
  std::ranges::sort(gone);
  std::vector<std::string> left;
  for (const std::string& name : names)
    if (!std::ranges::binary_search(gone, name)) left.push_back(name);
  // Ten hours of the last day, the 31 days before it, and the eleven months before October.
  EXPECT_EQ(left.size(), 10U + 31U + 11U);
  EXPECT_EQ(left.front(), NameOfCopy(Now));
  EXPECT_EQ(left[10], "Recpra 2026-11-21 23-00-00.Dat");
  EXPECT_EQ(left.back(), "Recpra 2025-11-30 23-00-00.Dat");
}

TEST(Superseded, OtherFilesAreLeftAlone) {
  EXPECT_EQ(Superseded({"Recpra.Dat", "mine 2001.Dat", "old"}, Now), std::vector<std::string>());
}

TEST(KeepCopy, CopiesTheFilmsOnceUntilTheyChange) {
  MemoryDisk collection(Folder{{Master, "films"}});
  MemoryDisk copies(Folder{});
  EXPECT_EQ(KeepCopy(collection, copies, Now), NameOfCopy(Now));
  EXPECT_EQ(KeepCopy(collection, copies, Now + hours(1)), "");
  MemoryDisk changed(Folder{{Master, "Films"}});
  EXPECT_EQ(KeepCopy(changed, copies, Now + hours(2)), NameOfCopy(Now + hours(2)));
  EXPECT_EQ(copies.Content(), (Folder{{NameOfCopy(Now), "films"}, {NameOfCopy(Now + hours(2)), "Films"}}));
}

TEST(KeepCopy, WithoutFilmsThereIsNothingToCopy) {
  MemoryDisk copies(Folder{});
  MemoryDisk none(Folder{});
  MemoryDisk empty(Folder{{Master, ""}});
  EXPECT_EQ(KeepCopy(none, copies, Now), "");
  EXPECT_EQ(KeepCopy(empty, copies, Now), "");
  EXPECT_EQ(copies.Content(), Folder{});
}

TEST(KeepCopy, IsTheNewestEvenIfTheClockWasPutBack) {
  MemoryDisk collection(Folder{{Master, "films"}});
  MemoryDisk copies(Folder{{NameOfCopy(Now), "other"}});
  EXPECT_EQ(KeepCopy(collection, copies, Now - days(1)), NameOfCopy(Now + seconds(1)));
}

std::string NameOf(int year, unsigned month, unsigned day, seconds time = seconds(0)) {
  return NameOfCopy(std::chrono::local_days(std::chrono::year_month_day{
                        std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)}) +
                    time);
}

// Copies that were made while the clock was wrong.
TEST(CopiesFromFarAhead, AreNotCountedAndNeverSuperseded) {
  std::vector<std::string> names;
  names.reserve(31);
  for (int count = 0; count < 20; ++count) names.push_back(NameOf(2099, 5, 5, seconds(count)));
  for (int count = 0; count < 11; ++count) names.push_back(NameOfCopy(Now - days(3000) - seconds(count)));
  EXPECT_EQ(Superseded(names, Now), std::vector<std::string>{NameOfCopy(Now - days(3000) - seconds(10))});
}

TEST(CopiesFromFarAhead, BeginMoreThanADayAhead) {
  for (int ahead : {0, 1}) {
    MemoryDisk collection(Folder{{Master, "films"}});
    MemoryDisk copies(Folder{{NameOfCopy(Now + days(1) + seconds(ahead)), "films"}});
    EXPECT_EQ(KeepCopy(collection, copies, Now), ahead == 0 ? "" : NameOfCopy(Now));
  }
}

TEST(CopiesFromFarAhead, AreNotTheNewestAndStay) {
  const Folder before{{NameOf(2099, 5, 5), "films"}, {NameOf(9999, 12, 31, days(1) - seconds(1)), "films"}};
  MemoryDisk copies(before);
  for (int day = 0; day < 40; ++day) {
    MemoryDisk collection(Folder{{Master, "films " + std::to_string(day)}});
    EXPECT_EQ(KeepCopy(collection, copies, Now + days(day)), NameOfCopy(Now + days(day)));
    EXPECT_EQ(KeepCopy(collection, copies, Now + days(day) + hours(1)), "") << "films that have not changed";
  }
  Folder after = copies.Content();
  // 31 days and the newest of November, the month before.
  EXPECT_EQ(after.size(), before.size() + 32U);
  for (const auto& [name, content] : before) EXPECT_EQ(after[name], content);
}

TEST(CopiesFromFarAhead, AreNeverOverwritten) {
  const std::string at_limit = NameOfCopy(Now + days(1)), past_limit = NameOfCopy(Now + days(1) + seconds(1));
  MemoryDisk collection(Folder{{Master, "films"}});
  MemoryDisk copies(Folder{{at_limit, "one"}, {past_limit, "two"}});
  const std::string made = KeepCopy(collection, copies, Now);
  EXPECT_EQ(copies.Content(), (Folder{{at_limit, "one"}, {past_limit, "two"}, {made, "films"}}));
}

TEST(KeepCopy, NamesHaveYearsOfFourDigits) {
  const local_seconds last = *TimeOfCopy("Recpra 9999-12-31 23-59-59.Dat");
  MemoryDisk copies(Folder{});
  for (int start = 0; start < 3; ++start) {
    MemoryDisk collection(Folder{{Master, "films " + std::to_string(start)}});
    KeepCopy(collection, copies, last + days(start));
  }
  EXPECT_EQ(copies.Content(), (Folder{{"Recpra 9999-12-31 23-59-57.Dat", "films 2"},
                                      {"Recpra 9999-12-31 23-59-58.Dat", "films 1"},
                                      {"Recpra 9999-12-31 23-59-59.Dat", "films 0"}}));
}

TEST(KeepCopy, RemovesWhatIsSuperseded) {
  Folder before{{"notes.txt", "mine"}};
  for (int count = 0; count < 12; ++count) before[NameOfCopy(Now - days(500) - seconds(count))] = "old";
  MemoryDisk collection(Folder{{Master, "films"}});
  MemoryDisk copies(before);
  KeepCopy(collection, copies, Now);
  std::vector<std::string> names = NamesOf(copies.Content());
  EXPECT_EQ(names.size(), 11U);
  EXPECT_TRUE(copies.Content().contains("notes.txt"));
  EXPECT_TRUE(copies.Content().contains(NameOfCopy(Now)));
  EXPECT_FALSE(copies.Content().contains(NameOfCopy(Now - days(500) - seconds(11))));
}

// A stop can leave half a film in the master file, which the journal makes whole.
TEST(KeepCopy, HasNoHalfFilmOfASaveThatWasStopped) {
  const Folder before = kit::FolderOfFilms(8);
  store::FilmRecord film;
  std::ranges::copy(kit::FilmBytes(7, 1), film.Bytes.begin());
  const std::string slot_before = before.at(Master).substr(6 * store::RecordLength, store::RecordLength);
  auto save = [&](runtime::Disk& disk) {
    runtime::Files files(disk);
    store::OpenMaster(files, 1);
    store::WriteRecord(files, 1, 7, film);
  };
  MemoryDisk counted(before);
  kit::FaultyDisk counting(counted);
  save(counting);
  bool torn = false;
  for (std::size_t call = 0; call < counting.Calls(); ++call) {
    MemoryDisk collection(before), copies(Folder{});
    kit::FaultyDisk faulty(collection, {kit::Fault::KillHalfway, call, true});
    try {
      save(faulty);
    } catch (const kit::Killed&) {
    }
    auto slot = [](const std::string& films) { return films.substr(6 * store::RecordLength, store::RecordLength); };
    auto whole = [&](const std::string& bytes) { return bytes == slot_before || bytes == kit::FilmBytes(7, 1); };
    torn = torn || !whole(slot(collection.Content()[Master]));
    KeepCopy(collection, copies, Now);
    EXPECT_TRUE(whole(slot(copies.Content()[NameOfCopy(Now)]))) << "killed at call " << call;
  }
  EXPECT_TRUE(torn) << "no kill tore the film, so nothing was shown";
}

// Every call of the copies' disk fails in every way: the copies that were there stay, and a copy under its name is
// whole.
TEST(KeepCopy, AFailureLosesNoCopyAndLeavesNoPart) {
  const Folder before{{NameOfCopy(Now - days(1)), "old"}};
  const std::string films(300 * 1024, 'f');
  MemoryDisk source(Folder{{Master, films}});
  MemoryDisk counted(before);
  kit::FaultyDisk counting(counted);
  KeepCopy(source, counting, Now);
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::Refused, kit::Fault::ShortThenFull,
                           kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t call = 0; call < counting.Calls(); ++call) {
      MemoryDisk below(before);
      kit::FaultyDisk copies(below, {fault, call, true});
      try {
        KeepCopy(source, copies, Now);
      } catch (const runtime::Failure& failure) {
        EXPECT_NE(failure.Name, "");
      } catch (const kit::Killed&) {
      }
      Folder after = below.Content();
      EXPECT_EQ(after[NameOfCopy(Now - days(1))], "old") << NameOf(fault) << " at " << call;
      if (after.contains(NameOfCopy(Now))) {
        EXPECT_EQ(after[NameOfCopy(Now)], films);
      }
    }
  }
}

}  // namespace
}  // namespace launcher
