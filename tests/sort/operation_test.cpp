// The statuses of the operation, and the files it leaves.
#include "sort/operation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

#include "sort/layout.h"
#include "sort/statement.h"
#include "store/film_record.h"
#include "tests/sort/calls.h"

namespace sort {
namespace {

std::string Film(std::string_view title, std::string_view format = "D") {
  store::FilmRecord film;
  film.Set(store::FilmField::Title, title);
  film.Set(store::FilmField::Format, format);
  film.Set(store::FilmField::Tail, "\r\n");
  return {film.Bytes.data(), film.Bytes.size()};
}

std::string Key(std::string title, std::string_view number) {
  title.resize(40, ' ');
  return title.append(number).append("\r\n");
}

// The status of a sort that changes no file.
Status RefusedStatus(kit::MemoryDisk& disk, std::string_view statement) {
  Result outcome = SortOn(disk, "Titlepra.Dat", statement);
  EXPECT_EQ(outcome.Records, 0);
  EXPECT_EQ(FileOn(disk, "Titlepra.Dat"), "the old keys");
  EXPECT_EQ(Leftovers(disk), "");
  return outcome.Status;
}

kit::Folder OldFolder() {
  kit::Folder folder = FolderWith(Film("Solaris"));
  folder["Titlepra.Dat"] = "the old keys";
  return folder;
}

TEST(SortOperation, ReplacesTheOutputAndCountsItsRecords) {
  kit::Folder folder = OldFolder();
  folder["Recpra.Dat"] = Film("solaris") + Film("Brazil") + Film("") + Film("SOLARIS") + Film("Amelie");
  kit::MemoryDisk disk(folder);
  Result outcome = SortOn(disk, "Titlepra.Dat", TitlesStatement);
  EXPECT_EQ(outcome.Status, Status::Done);
  EXPECT_EQ(outcome.Records, 4);
  EXPECT_EQ(FileOn(disk, "Titlepra.Dat"), Key("Amelie", "0000005") + Key("Brazil", "0000002") +
                                              Key("solaris", "0000001") + Key("SOLARIS", "0000004"));
  EXPECT_EQ(Leftovers(disk), "");
}

TEST(SortOperation, MakesAnEmptyOutputOfAnEmptyInput) {
  for (const std::string& master : {std::string(), Film("Solaris").substr(0, 648)}) {
    kit::Folder folder = OldFolder();
    folder["Recpra.Dat"] = master;
    kit::MemoryDisk disk(folder);
    Result outcome = SortOn(disk, "Titlepra.Dat", TitlesStatement);
    EXPECT_EQ(outcome.Status, Status::Done);
    EXPECT_EQ(outcome.Records, 0);
    EXPECT_TRUE(disk.Content().contains("Titlepra.Dat"));
    EXPECT_EQ(FileOn(disk, "Titlepra.Dat"), "");
  }
}

TEST(SortOperation, NumbersRecordsOfSevenDigits) {
  const std::optional<Statement> statement = ParseStatement("S(1,1,C,A) OUTREC(Arrn) Record(1)");
  const Layout layout(*statement, {});
  for (std::uint32_t number : {1U, 12'345U, 1'234'567U, 9'999'999U}) {
    std::string entry(layout.EntryLength(), ' ');
    layout.MakeEntry("a", number, entry.data());
    const std::string digits = "000000" + std::to_string(number);
    EXPECT_EQ(entry.substr(0, 7), digits.substr(digits.size() - 7));
  }
}

TEST(SortOperation, WeighsTheFirstAndTheLastCharacterUpAndDown) {
  std::string weights(256, '\x55');
  weights[0] = '\xAA';
  weights['b'] = '\0';
  weights[255] = '\x10';
  kit::Folder folder = {{"Recpra.Dat", std::string("a\0\xFF"
                                                   "b",
                                                   4)},
                        {"W", weights}};
  kit::MemoryDisk disk(folder);
  ASSERT_EQ(SortOn(disk, "up", "S(1,1,C,A) ALTSEQ(W) OUTREC(1,1) Record(1)").Status, Status::Done);
  EXPECT_EQ(FileOn(disk, "up"), std::string("b\xFF"
                                            "a\0",
                                            4));
  ASSERT_EQ(SortOn(disk, "down", "S(1,1,C,D) ALTSEQ(W) OUTREC(1,1) Record(1)").Status, Status::Done);
  EXPECT_EQ(FileOn(disk, "down"), std::string("\0a\xFF"
                                              "b",
                                              4));
}

// Of many records, those that differ late in the key are told apart by halves of its later windows.
TEST(SortOperation, TellsManyRecordsApartByAnyPartOfTheKey) {
  std::string master, sorted;
  for (int number = 0; number < 400; ++number) {
    std::string key = "samesame";
    key.append(std::to_string(9999 - number)).append(std::to_string(1000 + number));
    master.append(key);
    sorted.insert(0, key);
  }
  kit::MemoryDisk memory(kit::Folder{{"Recpra.Dat", master}});
  SharedDisk disk(memory);
  for (const auto& [bytes, two_workers_from] :
       {std::pair(1'000'000, 0), std::pair(2000, 0), std::pair(2000, 100'000)}) {
    Limits limits;
    limits.MemoryBytes = static_cast<std::size_t>(bytes);
    limits.TwoWorkersFrom = two_workers_from;
    ASSERT_EQ(SortOn(disk, "out", "S(1,16,C,A) OUTREC(1,16) Record(16)", limits).Status, Status::Done);
    EXPECT_EQ(FileOn(memory, "out"), sorted);
  }
}

TEST(SortOperation, GivesStatus1ForAStatementThatCannotBeRead) {
  kit::MemoryDisk disk(OldFolder());
  EXPECT_EQ(RefusedStatus(disk, "S(1,40,C,A) nothing of that kind"), Status::StatementUnreadable);
}

TEST(SortOperation, GivesStatus2WhereTheInputIsMissing) {
  kit::Folder folder = OldFolder();
  folder.erase("Recpra.Dat");
  kit::MemoryDisk disk(folder);
  EXPECT_EQ(RefusedStatus(disk, TitlesStatement), Status::InputUnreadable);
}

// An input that reports too great a length and counts its reads.
class LongInput final : public kit::PassingDisk {
 public:
  LongInput(runtime::Disk& below, std::int64_t more_records) : PassingDisk(below), more_records_(more_records) {}
  int Reads() const { return reads_; }

  std::int64_t Length(int handle) override {
    return PassingDisk::Length(handle) + (NameOf(handle) == "Recpra.Dat" ? more_records_ * store::RecordLength : 0);
  }
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    if (NameOf(handle) == "Recpra.Dat") ++reads_;
    return PassingDisk::ReadAt(handle, target, count, offset);
  }

 private:
  std::int64_t more_records_;
  std::atomic<int> reads_ = 0;  // of two threads
};

TEST(SortOperation, GivesStatus2ForMoreRecordsThanSevenDigitsNumber) {
  EXPECT_EQ(MaxRecords, 9'999'999);
  kit::MemoryDisk memory(OldFolder());
  LongInput disk(memory, MaxRecords);
  Result outcome = SortOn(disk, "Titlepra.Dat", TitlesStatement);
  EXPECT_EQ(outcome.Status, Status::InputUnreadable);
  EXPECT_EQ(disk.Reads(), 0);
  EXPECT_EQ(outcome.Records, 0);
  EXPECT_EQ(FileOn(memory, "Titlepra.Dat"), "the old keys");
}

TEST(SortOperation, TakesAsManyRecordsAsSevenDigitsNumber) {
  kit::MemoryDisk memory(OldFolder());
  LongInput disk(memory, MaxRecords - 1);
  EXPECT_EQ(SortOn(disk, "Titlepra.Dat", TitlesStatement).Status, Status::InputUnreadable);
  EXPECT_GT(disk.Reads(), 0);
}

TEST(SortOperation, GivesStatus2WhereTheInputIsShorterThanItSaid) {
  kit::MemoryDisk memory(OldFolder());
  LongInput disk(memory, 1);
  EXPECT_EQ(SortOn(disk, "Titlepra.Dat", TitlesStatement).Status, Status::InputUnreadable);
  EXPECT_EQ(FileOn(memory, "Titlepra.Dat"), "the old keys");
  EXPECT_EQ(Leftovers(memory), "");
}

TEST(SortOperation, GivesStatus3WhereTheWeightsAreMissingOrOfAnotherLength) {
  for (int length : {-1, 0, 255, 257, 512}) {
    kit::Folder folder = OldFolder();
    folder.erase("UPPER.ALT");
    if (length >= 0) folder["UPPER.ALT"] = std::string(static_cast<std::size_t>(length), 'A');
    kit::MemoryDisk disk(folder);
    EXPECT_EQ(RefusedStatus(disk, TitlesStatement), Status::WeightsUnreadable) << length;
  }
}

TEST(SortOperation, NeedsNoWeightsWhereTheStatementNamesNone) {
  kit::Folder folder = FolderWith(Film("b") + Film("C") + Film("a") + Film("\xE9"));
  folder.erase("UPPER.ALT");
  kit::MemoryDisk disk(folder);
  EXPECT_EQ(SortOn(disk, "out", "S(1,1,C,A) OUTREC(1,1) Record(649)").Status, Status::Done);
  EXPECT_EQ(FileOn(disk, "out"), "Cab\xE9");
}

TEST(SortOperation, GivesStatus4WhereTheOutputCannotBePut) {
  kit::MemoryDisk disk(OldFolder());
  Result outcome = SortOn(disk, "no such folder/Titlepra.Dat", TitlesStatement);
  EXPECT_EQ(outcome.Status, Status::OutputUnwritable);
  EXPECT_EQ(outcome.Records, 0);
  EXPECT_EQ(Leftovers(disk), "");
}

TEST(SortOperation, ComparesAConstantAsIfPaddedWithBlanks) {
  kit::MemoryDisk disk(FolderWith(Film("Ran") + Film("Rango") + Film("ran") + Film("Ram")));
  SortOn(disk, "out", "S(1,5,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,5,Arrn) Include(1,40,C,EQ,\"RAN\") Record(649)");
  EXPECT_EQ(FileOn(disk, "out"), "Ran  0000001ran  0000003");
  SortOn(disk, "out", "S(1,5,C,A) OUTREC(1,5,Arrn) Include(1,3,C,EQ,\"Ran  \") Record(649)");
  EXPECT_EQ(FileOn(disk, "out"), "Ran  0000001Rango0000002");
}

// Longer than one block of reading and writing.
TEST(SortOperation, WritesOutputRecordsOfAnyLength) {
  std::string records;
  for (char letter : {'b', 'a'}) records += std::string(MaxRecordLength, letter);
  std::string pieces;
  std::string expected;
  for (char letter : {'a', 'b'}) expected += std::string(12 * MaxRecordLength, letter);
  for (int piece = 0; piece < 12; ++piece) pieces += piece == 0 ? "1,32767" : ",1,32767";
  for (std::int64_t two_workers_from : {1, 100}) {
    for (std::size_t memory : {std::size_t{1}, std::size_t{64} << 20}) {
      kit::MemoryDisk memory_disk(FolderWith(records));
      SharedDisk disk(memory_disk);
      Result outcome =
          SortOn(disk, "out", "S(1,1,C,A) OUTREC(" + pieces + ") Record(32767)", {memory, two_workers_from});
      EXPECT_EQ(outcome.Records, 2);
      EXPECT_TRUE(FileOn(memory_disk, "out") == expected);
    }
  }
}

// Equal to the last byte of a key of two million, which are compared a few at a time.
TEST(SortOperation, KeepsTheOrderOfRecordsThatAreEqualInALongKey) {
  std::string records(3 * MaxRecordLength, 'a');
  std::string fields = "1,32767,C,A";
  for (int field = 1; field < 64; ++field) fields += ",1,32767,C,A";
  kit::MemoryDisk disk(FolderWith(records));
  Result outcome = SortOn(disk, "out", "S(" + fields + ") OUTREC(Arrn) Record(32767)");
  EXPECT_EQ(outcome.Status, Status::Done);
  EXPECT_EQ(FileOn(disk, "out"), "000000100000020000003");
}

TEST(SortOperation, LeavesTheTemporaryFilesOfAnEarlierStopToTheNextStart) {
  kit::Folder folder = OldFolder();
  folder[".reelora/Titlepra.Dat.new"] = std::string(5000, '?');
  folder[".reelora/Titlepra.Dat.runs.new"] = std::string(5000, '?');
  kit::MemoryDisk disk(folder);
  EXPECT_EQ(SortOn(disk, "Titlepra.Dat", TitlesStatement, {1, 100}).Status, Status::Done);
  EXPECT_EQ(FileOn(disk, "Titlepra.Dat"), Key("Solaris", "0000001"));
  EXPECT_EQ(Leftovers(disk), ".reelora/Titlepra.Dat.new .reelora/Titlepra.Dat.runs.new ") << "those of the stop";
}

// Notes what it is told to reserve, and where writes end.
class NotingDisk final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  void Reserve(int handle, std::int64_t length) override {
    EXPECT_EQ(NameOf(handle), ".reelora/out.new");
    EXPECT_TRUE(Ends.empty()) << "before the first write";
    Reserved.push_back(length);
  }
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    Ends.push_back(offset + static_cast<std::int64_t>(count));
    return PassingDisk::WriteAt(handle, source, count, offset);
  }
  std::vector<std::int64_t> Reserved, Ends;
};

TEST(SortOperation, ReservesTheRoomOfALargeOutputAndWritesItInWholePages) {
  constexpr std::int64_t Worth = 1024 * 1024;
  constexpr std::int64_t Width = 49;  // of an output record
  for (std::int64_t records : {Worth / Width, Worth / Width + 1}) {
    std::string master;
    std::string expected;
    for (std::int64_t record = 1; record <= records; ++record) {
      const std::string number = std::to_string(10'000'000 + record).substr(1);
      master += number;
      expected.append(number).append(Width - 16, '0').append(number).append("\r\n");
    }
    kit::MemoryDisk memory({{"Recpra.Dat", master}});
    NotingDisk disk(memory);
    std::string statement = "S(1,7,C,A) OUTREC(1,7";
    for (int zeros = 0; zeros < 32; ++zeros) statement.append(",1,1");
    statement.append(",1,1,Arrn,CRLF) Record(7)");
    SortOn(disk, "out", statement, {.TwoWorkersFrom = MaxRecords});
    EXPECT_TRUE(FileOn(memory, "out") == expected);
    ASSERT_GT(disk.Ends.size(), 1U);
    for (std::size_t at = 0; at + 1 < disk.Ends.size(); ++at) EXPECT_EQ(disk.Ends[at] % (64 * 1024), 0);
    EXPECT_EQ(disk.Ends.back(), records * Width);
    if (records * Width < Worth) {
      EXPECT_TRUE(disk.Reserved.empty());
    } else {
      EXPECT_EQ(disk.Reserved, std::vector{records * Width});
    }
  }
}

TEST(SortOperation, TellsHowMuchOfTheInputItHasRead) {
  std::string master;
  for (int film = 0; film < 2000; ++film) master += Film(std::to_string(film));
  for (std::int64_t two_workers_from : {std::int64_t{1}, MaxRecords}) {
    kit::MemoryDisk memory(FolderWith(master));
    SharedDisk disk(memory);
    Limits limits;
    limits.TwoWorkersFrom = two_workers_from;
    Sorter sorter(disk, limits);
    std::vector<double> parts;
    sorter.Progress = [&, caller = std::this_thread::get_id()](double part) {
      EXPECT_EQ(std::this_thread::get_id(), caller);
      parts.push_back(part);
    };
    for (std::size_t pass : {0U, 1U}) {
      parts.clear();
      EXPECT_EQ(SortWith(sorter, "Titlepra.Dat", StatementOfPass(pass)).Status, Status::Done);
      // Of two workers the other one may take all blocks, and then only the end is told.
      ASSERT_GE(parts.size(), two_workers_from == 1 ? 1U : 2U);
      EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
      EXPECT_GT(parts.front(), 0);
      EXPECT_EQ(parts.back(), 1);
    }
  }
}

}  // namespace
}  // namespace sort
