// What calls of numbered files leave behind, above all failing ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

#include "runtime/files.h"
#include "runtime/whole_io.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/refusing_disk.h"

namespace safety {
namespace {

class FilesByNumber : public testing::Test {
 protected:
  std::string Read(int number, int record) {
    std::string target(4, '?');
    Files.Get(number, record, target.data());
    return target;
  }

  kit::MemoryDisk Memory{kit::Folder{{"Data", "aaaabbbbccccdddd"}, {".reelora/Other.new", "left"}}};
  kit::RefusingDisk Disk{Memory};
  runtime::Files Files{Disk};
};

TEST_F(FilesByNumber, AReadThatFailsLeavesNothingToBeReadLater) {
  Files.OpenRandom(1, "Data", 4);
  EXPECT_EQ(Read(1, 1), "aaaa");
  Disk.NoRead = true;
  EXPECT_THROW(Read(1, 2), runtime::Failure);
  EXPECT_THROW(Read(1, 2), runtime::Failure);
  Disk.NoRead = false;
  EXPECT_EQ(Read(1, 1), "aaaa");
  EXPECT_EQ(Read(1, 2), "bbbb");
}

TEST_F(FilesByNumber, AReplacedFileThatCannotBeOpenedStaysTheOldOne) {
  Files.OpenRandom(2, "Data", 4);
  Disk.Unopenable = "Data";
  EXPECT_THROW(Files.Replaced("Data"), runtime::Failure);
  EXPECT_EQ(Files.Length(2), 16);
  EXPECT_EQ(Read(2, 3), "cccc");
}

TEST_F(FilesByNumber, AReplacedFileIsReadAnew) {
  Files.OpenRandom(2, "Data", 4);
  EXPECT_EQ(Read(2, 1), "aaaa");
  Files.OpenOutput(3, "Data");
  Files.WriteLine(3, "zz");
  Files.Close(3);
  EXPECT_EQ(Read(2, 1), "zz\r\n");
}

TEST_F(FilesByNumber, AnOutputThatIsNotClosedLeavesTheOldFile) {
  Files.OpenOutput(3, "Data");
  Files.WriteLine(3, "zz");
  EXPECT_EQ(Memory.Content().at("Data"), "aaaabbbbccccdddd");
}

TEST_F(FilesByNumber, ALeftoverDoesNotGetIntoTheNewFile) {
  Files.OpenOutput(3, "Other");
  Files.Close(3);
  EXPECT_EQ(Memory.Content().at("Other"), "");
}

TEST_F(FilesByNumber, AWriteIsReadAtOnceWhateverWasReadAhead) {
  Files.OpenRandom(1, "Data", 4);
  EXPECT_EQ(Read(1, 1), "aaaa");
  EXPECT_EQ(Read(1, 2), "bbbb");
  Files.Put(1, 3, "yyyy");
  EXPECT_EQ(Read(1, 3), "yyyy");
}

TEST_F(FilesByNumber, AReplacementThatFailsLeavesNoTemporaryFile) {
  const kit::Folder before = Memory.Content();
  for (std::size_t call = 0; call < 4; ++call) {
    kit::FaultyDisk full(Memory, {kit::Fault::Full, call});
    EXPECT_THROW(runtime::ReplaceFile(full, "Data", "new"), runtime::Failure) << call;
    EXPECT_EQ(Memory.Content(), before) << call;
  }
}

TEST_F(FilesByNumber, LeftoversGoAndNothingElse) {
  kit::Folder kept = Memory.Content();
  kept.erase(".reelora/Other.new");
  runtime::RemoveLeftovers(Disk);
  EXPECT_EQ(Memory.Content(), kept);
}

}  // namespace
}  // namespace safety
