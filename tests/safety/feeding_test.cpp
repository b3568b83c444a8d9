// Feeds files of any content: the program starts or reports the failure, and reading writes nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"
#include "tests/safety/reading.h"
#include "tests/safety/steps.h"

namespace safety {
namespace {

const std::string Master(store::MasterFileName);
// Read at every start.
const char* const SmallFiles[] = {"AutoSave", "AutoSort", "BGColor", "txtBGColor", "txtForColor", "tagForColor",
                                  "Titlepra", "Laserpra", "VHSpra",  "DVDpra",     "Fo1"};

std::string RandomBytes(std::mt19937& random, std::size_t length) {
  std::string bytes(length, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

void Look(Program& program, int steps) {
  frmPage1& screen = program.RecordScreen;
  for (int step = 0; step < steps; ++step) program.Deliver([&] { screen.UserClick(screen.cmdNext); });
  for (int step = 0; step < steps; ++step) program.Deliver([&] { screen.UserClick(screen.cmdPrevious); });
}

// Browses, searches, lists and prints.
void ExpectOnlyReadByAll(const kit::Folder& folder, unsigned seed) {
  kit::MemoryDisk disk(folder);
  ReadersDesk desk(seed);
  std::optional<Program> program;
  for (Reader reader : Readers()) {
    if (!program || program->Ended()) {
      program.reset();
      program.emplace(desk, disk);
      program->StartRecordScreen();
    }
    Click(*program, reader);
  }
  ASSERT_EQ(disk.Content(), folder);
  ASSERT_EQ(disk.Moments(), 0U);
}

// The files after a sort of this master file.
kit::Folder SortedFolder(const std::string& master) {
  kit::Folder folder = kit::FolderOfFilms(0);
  folder[Master] = master;
  kit::MemoryDisk disk(folder);
  StartedProgram sorting(disk);
  SortFilms()(sorting.Program);
  EXPECT_FALSE(sorting.Program.Stopped()) << sorting.Program.Stopped()->Name;
  EXPECT_EQ(disk.Content().at(Master), master);
  return disk.Content();
}

// Starts on a master file of these bytes, steps forward and back.
void ExpectOnlyRead(const std::string& master) {
  kit::Folder folder = kit::FolderOfFilms(0);
  folder[Master] = master;
  kit::MemoryDisk disk(folder);
  StartedProgram started(disk);
  Look(started.Program, static_cast<int>(std::min<std::size_t>(master.size() / store::RecordLength, 6)) + 2);
  ASSERT_FALSE(started.Program.Stopped()) << started.Program.Stopped()->Name;
  ASSERT_EQ(disk.Content(), folder);
  ASSERT_EQ(disk.Moments(), 0U);
}

TEST(Feeding, AMasterFileOfEveryLengthUpToThreeRecords) {
  std::mt19937 random(1);
  std::string films = kit::FilmBytes(1, 0) + kit::FilmBytes(2, 0) + kit::FilmBytes(3, 0);
  for (std::size_t length = 0; length <= films.size(); ++length) {
    SCOPED_TRACE(length);
    const std::string garbled = RandomBytes(random, length);
    ASSERT_NO_FATAL_FAILURE(ExpectOnlyRead(films.substr(0, length)));
    ASSERT_NO_FATAL_FAILURE(ExpectOnlyRead(garbled));
    if (length % 3 == 0) {
      const std::string master = length % 2 == 0 ? films.substr(0, length) : garbled;
      ASSERT_NO_FATAL_FAILURE(ExpectOnlyReadByAll(SortedFolder(master), static_cast<unsigned>(length)));
    }
  }
}

TEST(Feeding, AMasterFileOfAThousandRandomLengths) {
  std::mt19937 random(2);
  for (int trial = 0; trial < 1000; ++trial) {
    std::size_t length = 3 * store::RecordLength + random() % 100000;
    SCOPED_TRACE(length);
    const std::string garbled = RandomBytes(random, length);
    ASSERT_NO_FATAL_FAILURE(ExpectOnlyRead(garbled));
    if (trial % 10 == 0) {
      ASSERT_NO_FATAL_FAILURE(ExpectOnlyReadByAll(SortedFolder(garbled), static_cast<unsigned>(length)));
    }
  }
}

class FedSmallFile : public testing::TestWithParam<const char*> {
 protected:
  void ExpectStartOrNamedFailure(const std::string& content) {
    kit::Folder folder = kit::FolderOfFilms(3);
    folder[GetParam()] = content;
    kit::MemoryDisk disk(folder);
    StartedProgram started(disk);
    Look(started.Program, 2);
    if (started.Program.Stopped()) {
      // An overflow is one of the number, not of the file.
      if (started.Program.Stopped()->Name != runtime::Overflow) {
        ASSERT_EQ(started.Program.Stopped()->File, GetParam());
      }
      ASSERT_EQ(started.Desk.Reported, started.Program.Stopped()->Name);
    }
    ASSERT_EQ(disk.Content(), folder);
  }
};

TEST_P(FedSmallFile, OfEveryLength) {
  std::mt19937 random(3);
  const std::string delivered = kit::FolderOfFilms(0).at(GetParam());
  for (std::size_t length = 0; length <= 300; ++length) {
    SCOPED_TRACE(length);
    std::string repeated;
    while (repeated.size() < length) repeated += delivered;
    ASSERT_NO_FATAL_FAILURE(ExpectStartOrNamedFailure(repeated.substr(0, length)));
    ASSERT_NO_FATAL_FAILURE(ExpectStartOrNamedFailure(std::string(length, '9')));
    ASSERT_NO_FATAL_FAILURE(ExpectStartOrNamedFailure(RandomBytes(random, length)));
  }
}

TEST_P(FedSmallFile, ThatIsMissing) {
  kit::Folder folder = kit::FolderOfFilms(3);
  folder.erase(GetParam());
  kit::MemoryDisk disk(folder);
  StartedProgram started(disk);
  ASSERT_TRUE(started.Program.Stopped());
  EXPECT_EQ(started.Program.Stopped()->Name, runtime::FileNotFound);
  EXPECT_EQ(started.Program.Stopped()->File, GetParam());
  EXPECT_EQ(disk.Content(), folder);
}

// What is read later than at the start: the key files and the number of the last film entered.
class FedFileOfReaders : public testing::TestWithParam<const char*> {};

TEST_P(FedFileOfReaders, OfEveryLength) {
  std::mt19937 random(4);
  kit::Folder folder = SortedFolder(kit::Films(1, 3));
  for (std::size_t length = 0; length <= 300; ++length) {
    SCOPED_TRACE(length);
    folder[GetParam()] = length % 2 == 0 ? RandomBytes(random, length) : std::string(length, '1');
    ASSERT_NO_FATAL_FAILURE(ExpectOnlyReadByAll(folder, static_cast<unsigned>(length)));
  }
}

TEST(Feeding, AFlagOfTheFeaturesWindowOfEveryLength) {
  std::mt19937 random(5);
  kit::Folder folder = kit::FolderOfFilms(3);
  for (std::size_t length = 0; length <= 300; ++length) {
    SCOPED_TRACE(length);
    folder["Fo"] = RandomBytes(random, length);
    kit::MemoryDisk disk(folder);
    StartedProgram started(disk, StartedProgram::At::Opener);
    if (started.Program.Stopped()) {
      EXPECT_EQ(started.Program.Stopped()->File, "Fo");
    }
    ASSERT_EQ(disk.Content(), folder);
  }
}

TEST(Feeding, WeightsOfAnotherLengthChangeNoKeyFile) {
  std::mt19937 random(6);
  kit::Folder folder = SortedFolder(kit::Films(1, 3));
  const std::string keys = folder.at("Titlepra.Dat");
  for (std::size_t length = 0; length <= 300; ++length) {
    SCOPED_TRACE(length);
    folder["UPPER.ALT"] = RandomBytes(random, length);
    kit::MemoryDisk disk(folder);
    StartedProgram started(disk);
    SortFilms()(started.Program);
    ASSERT_FALSE(started.Program.Stopped()) << started.Program.Stopped()->Name;
    ASSERT_EQ(disk.Content().at(Master), folder.at(Master));
    EXPECT_TRUE(disk.Content().at("Titlepra.Dat") == keys || length == 256);
  }
}

INSTANTIATE_TEST_SUITE_P(Names, FedFileOfReaders,
                         testing::Values("Titlepra.Dat", "DVDpra.Dat", "Laserpra.Dat", "VHSpra.Dat", "Last"),
                         [](const auto& name) {
                           const std::string file = name.param;
                           return file.substr(0, file.find('.'));
                         });
INSTANTIATE_TEST_SUITE_P(Names, FedSmallFile, testing::ValuesIn(SmallFiles),
                         [](const auto& name) { return std::string(name.param); });

}  // namespace
}  // namespace safety
