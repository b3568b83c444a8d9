// Where a new film goes.
#include "store/master_file.h"

#include <gtest/gtest.h>

#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"

namespace store {
namespace {

std::int64_t FirstFreeIn(const std::string& master, std::int64_t from) {
  kit::MemoryDisk disk(kit::Folder{{std::string(MasterFileName), master}});
  runtime::Files files(disk);
  OpenMaster(files, 1);
  return FirstFreeSlot(files, 1, from);
}

TEST(FirstFreeSlot, IsABlankOneOrTheOneBehindTheLast) {
  const std::string blank(RecordLength, ' ');
  EXPECT_EQ(FirstFreeIn("", 1), 1);
  EXPECT_EQ(FirstFreeIn(kit::Films(1, 3), 1), 4);
  EXPECT_EQ(FirstFreeIn(kit::Films(1, 3), 9), 9);
  EXPECT_EQ(FirstFreeIn(kit::Films(1, 1) + blank + kit::Films(3, 3), 1), 2);
  EXPECT_EQ(FirstFreeIn(kit::Films(1, 1) + blank + kit::Films(3, 3), 3), 4);
}

TEST(FirstFreeSlot, IsBehindARecordThatTheFileCutsOff) { EXPECT_EQ(FirstFreeIn(kit::Films(1, 3) + "X", 1), 5); }

}  // namespace
}  // namespace store
