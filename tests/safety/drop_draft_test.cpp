// Dropping a draft: it is there or gone, it is gone for good if that is said, and no film is touched.
#include <gtest/gtest.h>

#include "store/draft.h"
#include "tests/companion/command_test.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"
#include "tests/safety/fault_rows.h"

namespace safety {
namespace {

const std::string DraftFile = ".reelora/draft";

class DropDraft : public testing::Test {
 protected:
  static kit::Folder WithDraft() {
    kit::MemoryDisk memory(kit::FolderOfFilms(3));
    runtime::MakeSafetyFolder(memory);
    store::Draft draft{2, false, "Film", {}, {}};
    kit::FilmBytes(2, 1).copy(draft.Film.Bytes.data(), draft.Film.Bytes.size());
    store::WriteDraft(memory, "draft", draft);
    return memory.Content();
  }
  companion::Ran Drop(runtime::Disk& disk) const {
    return companion::RunIn(Locked.Path(), {"draft", "--drop", "--write"},
                            [&](const std::string&) { return std::make_unique<kit::PassingDisk>(disk); });
  }
  // Whether the draft is gone; all else has to be as it was.
  bool IsGone(kit::Folder folder) const {
    std::erase_if(folder, [](const auto& file) { return file.first == ".reelora/journal"; });
    if (folder == Before) return false;
    folder.insert(*Before.find(DraftFile));
    EXPECT_TRUE(folder == Before);
    return true;
  }

  const kit::FreshFolder Locked;
  const kit::Folder Before = WithDraft();
};

TEST_F(DropDraft, IsDoneOrFailsNamed) {
  kit::MemoryDisk memory(Before);
  kit::FaultyDisk counting(memory);
  ASSERT_EQ(Drop(counting).Status, companion::Done);
  ASSERT_TRUE(IsGone(memory.Content()));
  for (const FaultRow& fault : Faults) {
    for (std::size_t at = 0; at < counting.Calls(); ++at) {
      SCOPED_TRACE(std::string(fault.Name) + " at call " + std::to_string(at));
      kit::MemoryDisk below(Before);
      kit::FaultyDisk faulty(below, {fault.As, at, fault.FromThenOn});
      const companion::Ran ran = Drop(faulty);
      const bool gone = IsGone(below.Content());
      ASSERT_EQ(ran.Status == companion::Done, ran.Errors.empty());
      ASSERT_TRUE(gone || ran.Status != companion::Done);
    }
  }
}

TEST_F(DropDraft, OutlivesALossOfPower) {
  kit::MemoryDisk memory(Before);
  ASSERT_EQ(Drop(memory).Status, companion::Done);
  for (std::size_t moment = 0; moment <= memory.Moments(); ++moment) {
    for (const kit::Folder& state : memory.AfterPowerLoss(moment, 64))
      ASSERT_TRUE(IsGone(state) || moment < memory.Moments());
  }
}

}  // namespace
}  // namespace safety
