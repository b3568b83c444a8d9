// Disables one safeguard of the program, to show that the tests notice: a disk that drops the calls of that safeguard.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/kit/passing_disk.h"
#include "tests/safety/soundness.h"

namespace safety {

enum class Safeguard {
  JournalWrite,
  JournalSync,
  RecordSync,
  HistorySync,
  SafetyFolderSync,
  CollectionFolderSync,
  FolderSyncEachRun,  // only the run that creates the journal syncs the folders
  AsideSync,
  AsideRename,  // the old file is overwritten in place
  Recovery,
  RecoverySync,
  TakingBack,
  DoneMark,
  NameCheck,       // the name of the master file leads to the open one
  FreshNames,      // temporary files take the place of any that are there
  SortFolderSync,  // of the replaced key and count files
  HistoryWrite,
  RecoveryCut,  // of an append that stopped short
  LeftoverRemoval,
  DraftRename,  // the old draft is overwritten in place
  CopySync,
  CopyRename,  // the old copy is overwritten in place
  CopyFolderSync,
  CopyRemainsRemoval,
  CopyLock,  // of a copy that is being written
};

struct SafeguardRow {
  Safeguard Guard;
  std::string Name;
};
const std::vector<SafeguardRow>& Safeguards();

class DisabledSafeguard final : public kit::PassingDisk {
 public:
  DisabledSafeguard(runtime::Disk& below, Safeguard guard);

  int Open(const std::string& name, Mode mode) override;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override;
  int Truncate(int handle, std::int64_t length) override;
  int Sync(int handle) override;
  int Identify(int handle, runtime::FileIdentity& identity) override;
  int Lock(int handle) override;
  int Remove(const std::string& name) override;
  int Rename(const std::string& from, const std::string& to) override;
  int SyncFolder(const std::string& name) override;

 private:
  bool IsOff(Safeguard guard) const { return guard_ == guard; }
  // The calls of that safeguard.
  bool IsSkippedWrite(const std::string& name, std::size_t count) const;
  bool IsSkippedSync(const std::string& name) const;
  bool IsDoneInPlace(const std::string& from, const std::string& to) const;
  bool TakesBack(const std::string& name) const { return IsOff(Safeguard::TakingBack) && failed_ && name == master_; }

  const Safeguard guard_;
  const std::string master_;
  bool journal_was_there_ = false;
  bool journal_written_ = false;
  bool failed_ = false;
  bool sorted_ = false;
};

DiskWrapper Without(Safeguard guard);

}  // namespace safety
