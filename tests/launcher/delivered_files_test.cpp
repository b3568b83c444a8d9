// What a start puts into a collection, and what it leaves alone.
#include "launcher/delivered_files.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "runtime/checksum.h"
#include "runtime/failure.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/passing_disk.h"

namespace launcher {
namespace {

using kit::Folder;
using kit::MemoryDisk;

const Folder Delivered{{"AutoSave", "YES\r\n"}, {"Reelora4.HLP", "help"}, {"UPPER.ALT", "letters"}};
const Folder Newer{{"AutoSave", "NO\r\n"}, {"Reelora4.HLP", "better help"}, {"UPPER.ALT", "more letters"}};

// Without the safety folder.
Folder Files(const MemoryDisk& disk) {
  Folder files = disk.Content();
  std::erase_if(files, [](const auto& file) { return file.first.starts_with(runtime::SafetyFolder); });
  return files;
}

void Complete(const Folder& delivered, runtime::Disk& collection) {
  MemoryDisk disk(delivered);
  CompleteCollection(disk, collection);
}

TEST(CompleteCollection, PutsWhatIsMissingOrEmpty) {
  MemoryDisk collection(Folder{{"AutoSave", ""}, {"Recpra.Dat", "films"}});
  Complete(Delivered, collection);
  Folder expected = Delivered;
  expected["Recpra.Dat"] = "films";
  EXPECT_EQ(Files(collection), expected);
}

TEST(CompleteCollection, LeavesSettingsAlone) {
  MemoryDisk collection(Folder{{"AutoSave", "NO\r\n"}});
  Complete(Delivered, collection);
  EXPECT_EQ(Files(collection)["AutoSave"], "NO\r\n");
}

TEST(CompleteCollection, BringsHelpAndLettersUpToDate) {
  MemoryDisk collection(Folder{});
  Complete(Delivered, collection);
  Complete(Newer, collection);
  EXPECT_EQ(Files(collection)["Reelora4.HLP"], "better help");
  EXPECT_EQ(Files(collection)["UPPER.ALT"], "more letters");
  EXPECT_EQ(Files(collection)["AutoSave"], "YES\r\n");
  Complete(Delivered, collection);
  EXPECT_EQ(Files(collection)["UPPER.ALT"], "letters");
}

TEST(CompleteCollection, KnowsTheFilesOfACollectionThatHadThemAlready) {
  MemoryDisk collection(Delivered);
  Complete(Delivered, collection);
  Complete(Newer, collection);
  EXPECT_EQ(Files(collection)["UPPER.ALT"], "more letters");
}

TEST(CompleteCollection, LeavesWhatWasChangedByHand) {
  MemoryDisk collection(Folder{{"UPPER.ALT", "mine"}});
  Complete(Delivered, collection);
  Complete(Newer, collection);
  EXPECT_EQ(Files(collection)["UPPER.ALT"], "mine");
  EXPECT_EQ(Files(collection)["Reelora4.HLP"], "better help");
}

TEST(CompleteCollection, LeavesWhatWasChangedAfterItWasPut) {
  MemoryDisk collection(Folder{});
  Complete(Delivered, collection);
  Folder changed = collection.Content();
  changed["UPPER.ALT"] = "mine";
  MemoryDisk after(changed);
  Complete(Newer, after);
  EXPECT_EQ(Files(after)["UPPER.ALT"], "mine");
  EXPECT_EQ(Files(after)["Reelora4.HLP"], "better help");
}

TEST(CompleteCollection, BringsTheHelpOfAnEarlierVersionUpToDate) {
  MemoryDisk delivered(Delivered);
  MemoryDisk collection(Folder{{"Reelora4.HLP", "old help"}, {"UPPER.ALT", "old help"}});
  CompleteCollection(delivered, collection, {runtime::Checksum("older help"), runtime::Checksum("old help")});
  EXPECT_EQ(Files(collection)["Reelora4.HLP"], "help");
  EXPECT_EQ(Files(collection)["UPPER.ALT"], "old help");
}

TEST(CompleteCollection, NamesADeliveredFileThatIsEmpty) {
  MemoryDisk delivered(Folder{{"AutoSave", ""}, {"UPPER.ALT", "letters"}});
  MemoryDisk collection(Folder{});
  EXPECT_EQ(CompleteCollection(delivered, collection), "AutoSave");
  EXPECT_EQ(Files(collection), (Folder{{"UPPER.ALT", "letters"}}));
  MemoryDisk complete(Folder{{"AutoSave", "NO\r\n"}});
  EXPECT_EQ(CompleteCollection(delivered, complete), "");
  EXPECT_EQ(Files(complete)["AutoSave"], "NO\r\n");
}

TEST(CompleteCollection, ACompleteCollectionMayBeReadOnly) {
  class ReadOnly final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    int Open(const std::string& name, Mode mode) override {
      return mode == Mode::Read ? PassingDisk::Open(name, mode) : -EROFS;
    }
    int MakeFolder(const std::string&) override { return -EROFS; }
  };
  MemoryDisk memory(Delivered);
  ReadOnly collection(memory);
  EXPECT_NO_THROW(Complete(Delivered, collection));
}

TEST(CompleteCollection, WritesNothingIntoACompleteCollection) {
  MemoryDisk collection(Folder{});
  Complete(Delivered, collection);
  std::size_t moments = collection.Moments();
  Complete(Delivered, collection);
  EXPECT_EQ(collection.Moments(), moments);
}

TEST(CompleteCollection, ADamagedRecordOfTheDeliveryChangesNothing) {
  for (const char* record : {"", "zz UPPER.ALT\n", "12\n", "12 \n", "ffffffffffffffffff UPPER.ALT\n"}) {
    MemoryDisk collection(Folder{{"UPPER.ALT", "mine"}, {".reelora/delivered", record}});
    Complete(Delivered, collection);
    EXPECT_EQ(Files(collection)["UPPER.ALT"], "mine") << record;
  }
}

// A failure names itself, leaves each file old or new, and the next start completes the collection.
TEST(CompleteCollection, EachFailureCanBeFollowedByACompleteStart) {
  const Folder before{{"AutoSave", ""}, {"Recpra.Dat", "films"}};
  MemoryDisk counted(before);
  kit::FaultyDisk counting(counted);
  Complete(Delivered, counting);
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::Refused, kit::Fault::ShortThenFull,
                           kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t call = 0; call < counting.Calls(); ++call) {
      MemoryDisk below(before);
      kit::FaultyDisk faulty(below, {fault, call, true});
      try {
        Complete(Delivered, faulty);
      } catch (const runtime::Failure& failure) {
        EXPECT_NE(failure.Name, "");
      } catch (const kit::Killed&) {
      }
      Complete(Delivered, below);
      Folder expected = Delivered;
      expected["Recpra.Dat"] = "films";
      EXPECT_EQ(Files(below), expected) << NameOf(fault) << " at " << call;
    }
  }
}

}  // namespace
}  // namespace launcher
