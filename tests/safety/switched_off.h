// The program with one of its safeguards switched off, to show that the tests would see it: a disk between the program
// and its real one does not pass the calls of that safeguard on.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/kit/passing_disk.h"
#include "tests/safety/complaint.h"

namespace safety {

enum class Safeguard {
  JournalWrite,
  JournalSync,
  RecordSync,
  HistorySync,
  SafetyFolderSync,
  CollectionFolderSync,
  FolderSyncEachRun,  // the folders are synced by the run alone that makes the journal
  AsideSync,
  AsideRename,  // the old file is overwritten in its place
  Recovery,
  RecoverySync,
  TakingBack,
};

struct SafeguardRow {
  Safeguard Guard;
  std::string Name;
};
const std::vector<SafeguardRow>& Safeguards();

class SwitchedOff final : public kit::PassingDisk {
 public:
  SwitchedOff(runtime::Disk& below, Safeguard guard);

  int Open(const std::string& name, Mode mode) override;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override;
  int Truncate(int handle, std::int64_t length) override;
  int Sync(int handle) override;
  int Rename(const std::string& from, const std::string& to) override;
  int SyncFolder(const std::string& name) override;

 private:
  bool IsOff(Safeguard guard) const { return guard_ == guard; }
  bool TakesBack(const std::string& name) const { return IsOff(Safeguard::TakingBack) && failed_ && name == master_; }

  const Safeguard guard_;
  const std::string master_;
  bool journal_was_there_ = false;
  bool journal_written_ = false;
  bool failed_ = false;
};

Fitting Without(Safeguard guard);

}  // namespace safety
