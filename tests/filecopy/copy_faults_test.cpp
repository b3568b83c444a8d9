// Faults at the end of a copy: interrupted calls are repeated, and a failed sync of the folder is not a failed copy.
#include <gtest/gtest.h>

#include <cerrno>

#include "app/program.h"
#include "runtime/copy_file.h"
#include "tests/kit/answering_desk.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/passing_disk.h"

namespace {

using kit::Folder;
using kit::MemoryDisk;

const std::string Name = "Recpra.Dat";

// The first calls of each of these kinds fail with the error.
class EndFails final : public kit::PassingDisk {
 public:
  EndFails(runtime::Disk& below, int error) : PassingDisk(below), error_(error) {}
  int Rename(const std::string& from, const std::string& to) override {
    return RenameFailures-- > 0 ? error_ : PassingDisk::Rename(from, to);
  }
  int Remove(const std::string& name) override { return RemoveFailures-- > 0 ? error_ : PassingDisk::Remove(name); }
  int SyncFolder(const std::string& name) override {
    return SyncFailures-- > 0 ? error_ : PassingDisk::SyncFolder(name);
  }
  int RenameFailures = 0, RemoveFailures = 0, SyncFailures = 0;

 private:
  int error_;
};

TEST(EndOfACopy, RepeatsInterruptedCalls) {
  MemoryDisk source(Folder{{Name, "new"}}), memory(Folder{{Name, "old"}});
  EndFails target(memory, -EINTR);
  target.RenameFailures = target.SyncFailures = 2;
  EXPECT_EQ(runtime::CopyFile(source, Name, target, Name), runtime::Copied::Confirmed);
  EXPECT_EQ(memory.Content(), (Folder{{Name, "new"}}));
}

TEST(EndOfACopy, LeavesNoTemporaryFileWhenItsRemovalIsInterrupted) {
  class Refusing final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    int Rename(const std::string&, const std::string&) override { return -EACCES; }
  };
  MemoryDisk source(Folder{{Name, "new"}}), memory(Folder{{Name, "old"}});
  EndFails below(memory, -EINTR);
  below.RemoveFailures = 2;
  Refusing target(below);
  EXPECT_THROW(runtime::CopyFile(source, Name, target, Name), runtime::Failure);
  EXPECT_EQ(memory.Content(), (Folder{{Name, "old"}}));
}

TEST(EndOfACopy, IsUnconfirmedWhenTheFolderCannotBeSynced) {
  MemoryDisk source(Folder{{Name, "new"}}), memory(Folder{{Name, "old"}});
  EndFails target(memory, -EIO);
  target.SyncFailures = 1;
  EXPECT_EQ(runtime::CopyFile(source, Name, target, Name), runtime::Copied::Unconfirmed);
  EXPECT_EQ(memory.Content(), (Folder{{Name, "new"}}));
  EXPECT_EQ(target.SyncFailures, 0) << "a failed sync was repeated";
}

TEST(FullDisk, ThatGainsNoRoomByTheTargetsRemovalIsReported) {
  class AlwaysFull final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    std::int64_t WriteAt(int, const char*, std::size_t, std::int64_t) override { return -ENOSPC; }
  };
  MemoryDisk source(Folder{{Name, "new"}}), memory(Folder{{Name, "old"}, {"Last", "1"}});
  AlwaysFull target(memory);
  try {
    runtime::CopyFile(source, Name, target, Name);
    ADD_FAILURE() << "a copy without room";
  } catch (const runtime::Failure& failure) {
    EXPECT_EQ(failure.Name, runtime::DiskFull);
  }
  EXPECT_EQ(memory.Content(), (Folder{{"Last", "1"}}));
}

TEST(EndOfACopy, AnUnconfirmedCopyIsNotReportedAsAMissingDisk) {
  MemoryDisk hard(kit::FolderOfFilms(2)), floppy{Folder()};
  kit::AnsweringDesk desk;
  desk.Drives = {{'a', "floppy"}};
  Program program(desk, hard);
  program.Copy.DiskIn = [&](const std::string&) -> std::unique_ptr<runtime::Disk> {
    auto disk = std::make_unique<EndFails>(floppy, -EIO);
    disk->SyncFailures = 1;
    return disk;
  };
  program.StartRecordScreen();
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuCopy); });
  const auto& files = program.Copy.File1.Items();
  auto master = std::find(files.begin(), files.end(), Name) - files.begin();
  program.Deliver([&] { program.Copy.UserPick(program.Copy.File1, static_cast<int>(master)); });
  program.Deliver([&] { program.Copy.UserPick(program.Copy.Drive1, 0); });

  EXPECT_EQ(floppy.Content().at(Name), hard.Content().at(Name));
  ASSERT_EQ(desk.Boxes.size(), 2U);
  EXPECT_EQ(desk.Boxes[1],
            "The file was copied, but the disk did not confirm it. Please copy it again before you remove the disk.");
  EXPECT_FALSE(program.Copy.Visible());
  EXPECT_FALSE(program.Copy.lblCopy7.Visible());
}

}  // namespace
