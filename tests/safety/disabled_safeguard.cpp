// Maps disk calls to safeguards.
#include "tests/safety/disabled_safeguard.h"

#include <cerrno>

#include "runtime/whole_io.h"
#include "store/master_file.h"
#include "tests/safety/steps.h"

namespace safety {
namespace {

const std::string Journal = runtime::InSafetyFolder("journal");
constexpr std::size_t MarkLength = 8;
const std::string History = runtime::InSafetyFolder("history");
const std::string Draft = runtime::InSafetyFolder("draft");

// A copy before it has its name.
bool IsCopy(const std::string& name) { return name.find("/.reelora-copy") != std::string::npos; }

}  // namespace

const std::vector<SafeguardRow>& Safeguards() {
  static const std::vector<SafeguardRow> rows = {
      {Safeguard::JournalWrite, "JournalWrite"},
      {Safeguard::JournalSync, "JournalSync"},
      {Safeguard::RecordSync, "RecordSync"},
      {Safeguard::HistorySync, "HistorySync"},
      {Safeguard::SafetyFolderSync, "SafetyFolderSync"},
      {Safeguard::CollectionFolderSync, "CollectionFolderSync"},
      {Safeguard::FolderSyncEachRun, "FolderSyncEachRun"},
      {Safeguard::AsideSync, "AsideSync"},
      {Safeguard::AsideRename, "AsideRename"},
      {Safeguard::Recovery, "Recovery"},
      {Safeguard::RecoverySync, "RecoverySync"},
      {Safeguard::TakingBack, "TakingBack"},
      {Safeguard::DoneMark, "DoneMark"},
      {Safeguard::NameCheck, "NameCheck"},
      {Safeguard::FreshNames, "FreshNames"},
      {Safeguard::SortFolderSync, "SortFolderSync"},
      {Safeguard::HistoryWrite, "HistoryWrite"},
      {Safeguard::RecoveryCut, "RecoveryCut"},
      {Safeguard::LeftoverRemoval, "LeftoverRemoval"},
      {Safeguard::DraftRename, "DraftRename"},
      {Safeguard::CopySync, "CopySync"},
      {Safeguard::CopyRename, "CopyRename"},
      {Safeguard::CopyFolderSync, "CopyFolderSync"},
      {Safeguard::CopyRemainsRemoval, "CopyRemainsRemoval"},
      {Safeguard::CopyLock, "CopyLock"},
  };
  return rows;
}

DisabledSafeguard::DisabledSafeguard(runtime::Disk& below, Safeguard guard)
    : kit::PassingDisk(below), guard_(guard), master_(store::MasterFileName) {}

int DisabledSafeguard::Open(const std::string& name, Mode mode) {
  if (IsOff(Safeguard::Recovery) && name == Journal && mode == Mode::Read) return -ENOENT;
  const bool reused = IsOff(Safeguard::FreshNames) && mode == Mode::CreateNew;
  int handle = kit::PassingDisk::Open(name, reused ? Mode::Create : mode);
  if (reused && handle >= 0) Below().Truncate(handle, 0);
  journal_was_there_ = journal_was_there_ || (name == Journal && mode == Mode::Read && handle >= 0);
  return handle;
}

bool DisabledSafeguard::IsSkippedWrite(const std::string& name, std::size_t count) const {
  return (IsOff(Safeguard::JournalWrite) && name == Journal) || (IsOff(Safeguard::HistoryWrite) && name == History) ||
         (IsOff(Safeguard::DoneMark) && name == Journal && count == MarkLength) || TakesBack(name);
}

std::int64_t DisabledSafeguard::WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) {
  const std::string& name = NameOf(handle);
  journal_written_ = journal_written_ || name == Journal;
  if (IsSkippedWrite(name, count)) return static_cast<std::int64_t>(count);
  std::int64_t result = kit::PassingDisk::WriteAt(handle, source, count, offset);
  failed_ = failed_ || (result < 0 && result != -EINTR);
  return result;
}

int DisabledSafeguard::Truncate(int handle, std::int64_t length) {
  const std::string& name = NameOf(handle);
  const bool cuts = IsOff(Safeguard::RecoveryCut) && name == master_ && !journal_written_;
  return cuts || TakesBack(name) ? 0 : kit::PassingDisk::Truncate(handle, length);
}

bool DisabledSafeguard::IsSkippedSync(const std::string& name) const {
  return (IsOff(Safeguard::JournalSync) && name == Journal) || (IsOff(Safeguard::HistorySync) && name == History) ||
         (IsOff(Safeguard::RecordSync) && name == master_) ||
         (IsOff(Safeguard::RecoverySync) && name == master_ && !journal_written_) ||
         (IsOff(Safeguard::CopySync) && IsCopy(name)) ||
         (IsOff(Safeguard::AsideSync) && name.ends_with(runtime::AsideEnding));
}

int DisabledSafeguard::Sync(int handle) {
  if (IsSkippedSync(NameOf(handle))) return 0;
  int result = kit::PassingDisk::Sync(handle);
  failed_ = failed_ || (result < 0 && result != -EINTR);
  return result;
}

int DisabledSafeguard::Identify(int handle, runtime::FileIdentity& identity) {
  return IsOff(Safeguard::NameCheck) ? 0 : kit::PassingDisk::Identify(handle, identity);
}

int DisabledSafeguard::Lock(int handle) { return IsOff(Safeguard::CopyLock) ? 0 : kit::PassingDisk::Lock(handle); }

int DisabledSafeguard::Remove(const std::string& name) {
  const bool kept = (IsOff(Safeguard::LeftoverRemoval) && kit::FolderOf(name) == runtime::SafetyFolder) ||
                    (IsOff(Safeguard::CopyRemainsRemoval) && IsCopy(name));
  return kept ? 0 : kit::PassingDisk::Remove(name);
}

bool DisabledSafeguard::IsDoneInPlace(const std::string& from, const std::string& to) const {
  return IsOff(Safeguard::AsideRename) || (IsOff(Safeguard::DraftRename) && to == Draft) ||
         (IsOff(Safeguard::CopyRename) && IsCopy(from));
}

int DisabledSafeguard::Rename(const std::string& from, const std::string& to) {
  sorted_ = sorted_ || to.ends_with(".Dat");
  if (!IsDoneInPlace(from, to)) return kit::PassingDisk::Rename(from, to);
  std::string content;
  {
    runtime::OpenFile source(Below(), from, Mode::Read);
    content.resize(static_cast<std::size_t>(source.Length()));
    source.Read(content.data(), content.size(), 0);
  }
  runtime::OpenFile target(Below(), to, Mode::Create);
  target.Truncate(0);
  target.Write(content, 0);
  target.Sync();
  return Below().Remove(from);
}

int DisabledSafeguard::SyncFolder(const std::string& name) {
  bool skipped = (IsOff(Safeguard::SafetyFolderSync) && name == runtime::SafetyFolder) ||
                 (IsOff(Safeguard::CollectionFolderSync) && name.empty()) ||
                 (IsOff(Safeguard::FolderSyncEachRun) && journal_was_there_) ||
                 (IsOff(Safeguard::CopyFolderSync) && name == Drive) || (IsOff(Safeguard::SortFolderSync) && sorted_);
  return skipped ? 0 : kit::PassingDisk::SyncFolder(name);
}

DiskWrapper Without(Safeguard guard) {
  return [guard](runtime::Disk& below) { return std::make_unique<DisabledSafeguard>(below, guard); };
}

}  // namespace safety
