// The four passes on the real films and on random collections, and any statement on random records, against plain
// references.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>

#include "runtime/text.h"
#include "runtime/whole_io.h"
#include "sort/statement.h"
#include "store/film_record.h"
#include "tests/kit/source_tree.h"
#include "tests/sort/calls.h"
#include "tests/sort/plain_sort.h"
#include "tests/story/sort_reference.h"
#include "tools/film_text.h"

namespace sort {
namespace {

class Chance {
 public:
  explicit Chance(unsigned seed) : engine_(seed) {}
  // From 0 to below the bound.
  std::size_t Below(std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(engine_); }
  char Of(std::string_view characters) { return characters[Below(characters.size())]; }
  std::string Text(std::size_t length, std::string_view characters) {
    std::string text;
    while (text.size() < length) text += Of(characters);
    return text;
  }

 private:
  std::mt19937 engine_;
};

// Blank, low, accented, in both cases, equal, equal ignoring case, and different late or early.
std::string RandomTitle(Chance& chance) {
  switch (chance.Below(8)) {
    case 0:
      return "";
    case 1:
      return chance.Text(1 + chance.Below(3), "\x01\x09\x1f !\"'(0/");
    case 2:
      return chance.Text(1 + chance.Below(12), "aA\xE0\xC0\xE9\xC9\x9A\x8A\xFF\x9F\xF7\xD7{Zz");
    case 3:
      return std::string("Equal Title").substr(0, 9 + chance.Below(3));
    case 4:
      return std::string(chance.Below(2) == 0 ? "the same" : "THE SAME");
    case 5:
      return std::string(chance.Below(41), 'q') + chance.Text(2, "abAB");
    case 6:
      return "0000" + chance.Text(chance.Below(5), "0 1/");
    default:
      return chance.Text(1 + chance.Below(45), "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ ,.:");
  }
}

std::string RandomCollection(Chance& chance, std::size_t most) {
  std::string master;
  for (std::size_t films = chance.Below(most + 1); films > 0; --films) {
    store::FilmRecord film;
    film.Set(store::FilmField::Title, RandomTitle(chance));
    film.Set(store::FilmField::Format, std::string(1, chance.Of("DLVDLVdlv x")));
    film.Set(store::FilmField::Tail, "\r\n");
    master.append(film.Bytes.data(), film.Bytes.size());
  }
  if (chance.Below(3) == 0) master += chance.Text(1 + chance.Below(store::RecordLength - 1), "D a");
  return master;
}

Limits RandomLimits(Chance& chance) {
  Limits limits;
  if (chance.Below(3) > 0) limits.MemoryBytes = 1 + chance.Below(4000);
  if (chance.Below(2) == 0) limits.TwoWorkersFrom = static_cast<std::int64_t>(chance.Below(30));
  return limits;
}

TEST(SortProperty, RandomCollectionsComeOutAsTheReference) {
  Chance chance(20261121);
  for (int collection = 0; collection < 1200 && !HasFatalFailure(); ++collection) {
    SCOPED_TRACE("collection " + std::to_string(collection));
    std::string master = RandomCollection(chance, 90);
    ExpectAsReference(master, RandomLimits(chance));
  }
}

TEST(SortProperty, LargeCollectionsComeOutAsTheReference) {
  Chance chance(4);
  for (std::size_t memory : {std::size_t{300'000}, std::size_t{64} << 20}) {
    for (std::int64_t two_workers_from : {0, 1'000'000}) {
      std::string master;
      while (master.size() < 17'000 * store::RecordLength)
        master += RandomCollection(chance, 20'000).substr(0, 17'000 * store::RecordLength);
      ExpectAsReference(master, {memory, two_workers_from});
    }
  }
}

TEST(SortProperty, TheRealFilmsComeOutAsTheReference) {
  std::ifstream text(kit::SourceFolder() / "tests/sort/real_films.txt");
  const tools::FilmText films = tools::ReadFilmText(text, "real_films.txt");
  ASSERT_EQ(films.Faults, "");
  ASSERT_EQ(films.MasterFile.size(), 3200u * store::RecordLength);
  ExpectAsReference(films.MasterFile, {});
  ExpectAsReference(films.MasterFile, {10'000, 0});
  ExpectAsReference(films.MasterFile, {100'000, 1'000'000});
}

// Changes the films between two sorts of one sorter, or leaves them.
void Change(std::string& master, Chance& chance) {
  const std::size_t films = master.size() / store::RecordLength;
  auto film = [&] { return chance.Below(films) * store::RecordLength; };
  switch (films == 0 ? 0 : chance.Below(12)) {
    case 0:
      master.insert(films * store::RecordLength, RandomCollection(chance, 2).substr(0, store::RecordLength));
      break;
    case 1:
      master.resize((films - 1) * store::RecordLength);
      break;
    case 2:
      master.replace(film(), 40, runtime::Fixed(RandomTitle(chance), 40));
      break;
    case 3:
      master[film() + 265] = chance.Of("DLVx");
      break;
    case 4:
      std::swap_ranges(master.begin(), master.begin() + 40, master.begin() + static_cast<std::ptrdiff_t>(film()));
      break;
    default:
      break;
  }
}

TEST(SortProperty, OneSorterSeesWhatHasChangedSinceItsLastSort) {
  Chance chance(77);
  for (int collection = 0; collection < 300; ++collection) {
    std::string master = RandomCollection(chance, 40);
    kit::MemoryDisk memory(FolderWith(master));
    SharedDisk disk(memory);
    Sorter sorter(disk, RandomLimits(chance));
    std::size_t next = chance.Below(4);
    for (int sort = 0; sort < 12; ++sort) {
      SCOPED_TRACE("collection " + std::to_string(collection) + ", sort " + std::to_string(sort));
      Change(master, chance);
      if (master != FileOn(memory, "Recpra.Dat")) runtime::ReplaceFile(memory, "Recpra.Dat", master);
      std::size_t pass = next;
      next = chance.Below(4);
      const std::string told = chance.Below(4) == 0 ? StatementOfPass(chance.Below(5)) : StatementOfPass(next);
      ASSERT_EQ(SortWith(sorter, "out", StatementOfPass(pass), told).Status, Status::Done);
      ASSERT_TRUE(FileOn(memory, "out") == story::SortedPairs(master, DeliveredWeights())[pass].KeyBytes);
    }
  }
}

constexpr std::size_t SmallRecord = 12;

RecordSpan RandomSpan(Chance& chance) {
  std::size_t offset = chance.Below(SmallRecord);
  return {offset, 1 + chance.Below(SmallRecord - offset)};
}

// Any statement on records of twelve bytes, without a test.
Statement RandomSort(Chance& chance) {
  Statement any;
  any.RecordLength = SmallRecord;
  for (std::size_t count = 1 + chance.Below(3); count > 0; --count)
    any.Fields.push_back({RandomSpan(chance), chance.Below(2) == 0});
  for (std::size_t count = 1 + chance.Below(4); count > 0; --count)
    any.Output.push_back({OutputPiece::Kind(chance.Below(3)), RandomSpan(chance)});
  if (chance.Below(2) == 0) any.WeightsFile = "UPPER.ALT";
  return any;
}

Statement WithRandomTest(Statement any, Chance& chance) {
  any.Include.reset();
  if (chance.Below(2) == 0) return any;
  IncludeTest& test = any.Include.emplace();
  test.Span = RandomSpan(chance);
  const std::size_t relation = 1 + chance.Below(6);  // neither none of the three nor all
  test.KeepsLess = (relation & 1) != 0;
  test.KeepsEqual = (relation & 2) != 0;
  test.KeepsGreater = (relation & 4) != 0;
  test.Span.Width = std::min<std::size_t>(test.Span.Width, 3);
  test.Constant = chance.Text(chance.Below(4), "aAbB ");
  return any;
}

TEST(SortProperty, AnyStatementDoesWhatItSays) {
  Chance chance(649);
  const std::string delivered = DeliveredWeights();
  Weights weights{};
  std::copy(delivered.begin(), delivered.end(), weights.begin());
  for (int trial = 0; trial < 500; ++trial) {
    std::string input = chance.Text(chance.Below(400), "aAbB\xE9\xC9 ~");
    kit::MemoryDisk memory(FolderWith(input));
    SharedDisk disk(memory);
    Sorter sorter(disk, RandomLimits(chance));
    Statement any = WithRandomTest(RandomSort(chance), chance);
    for (int number = 0; number < 4; ++number) {
      const Statement next = WithRandomTest(number == 2 ? RandomSort(chance) : any, chance);
      SCOPED_TRACE(Written(any));
      ASSERT_EQ(SortWith(sorter, "out", Written(any), Written(next)).Status, Status::Done);
      ASSERT_EQ(FileOn(memory, "out"), PlainlySorted(any, any.WeightsFile ? weights : PlainWeights(), input).Bytes);
      any = next;
    }
  }
}

}  // namespace
}  // namespace sort
