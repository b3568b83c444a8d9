// Maps disk calls to safeguards.
#include "tests/safety/disabled_safeguard.h"

#include <cerrno>

#include "runtime/whole_io.h"
#include "store/master_file.h"

namespace safety {
namespace {

const std::string Journal = runtime::InSafetyFolder("journal");
constexpr std::size_t MarkLength = 8;
const std::string History = runtime::InSafetyFolder("history");

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

std::int64_t DisabledSafeguard::WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) {
  const std::string& name = NameOf(handle);
  journal_written_ = journal_written_ || name == Journal;
  const bool skipped = (IsOff(Safeguard::JournalWrite) && name == Journal) ||
                       (IsOff(Safeguard::DoneMark) && name == Journal && count == MarkLength) || TakesBack(name);
  if (skipped) return static_cast<std::int64_t>(count);
  std::int64_t result = kit::PassingDisk::WriteAt(handle, source, count, offset);
  failed_ = failed_ || (result < 0 && result != -EINTR);
  return result;
}

int DisabledSafeguard::Truncate(int handle, std::int64_t length) {
  return TakesBack(NameOf(handle)) ? 0 : kit::PassingDisk::Truncate(handle, length);
}

int DisabledSafeguard::Sync(int handle) {
  const std::string& name = NameOf(handle);
  bool skipped = (IsOff(Safeguard::JournalSync) && name == Journal) ||
                 (IsOff(Safeguard::HistorySync) && name == History) ||
                 (IsOff(Safeguard::RecordSync) && name == master_) ||
                 (IsOff(Safeguard::RecoverySync) && name == master_ && !journal_written_) ||
                 (IsOff(Safeguard::AsideSync) && name.ends_with(runtime::AsideEnding));
  if (skipped) return 0;
  int result = kit::PassingDisk::Sync(handle);
  failed_ = failed_ || (result < 0 && result != -EINTR);
  return result;
}

int DisabledSafeguard::Identify(int handle, runtime::FileIdentity& identity) {
  return IsOff(Safeguard::NameCheck) ? 0 : kit::PassingDisk::Identify(handle, identity);
}

int DisabledSafeguard::Rename(const std::string& from, const std::string& to) {
  sorted_ = sorted_ || to.ends_with(".Dat");
  if (!IsOff(Safeguard::AsideRename)) return kit::PassingDisk::Rename(from, to);
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
                 (IsOff(Safeguard::SortFolderSync) && sorted_);
  return skipped ? 0 : kit::PassingDisk::SyncFolder(name);
}

DiskWrapper Without(Safeguard guard) {
  return [guard](runtime::Disk& below) { return std::make_unique<DisabledSafeguard>(below, guard); };
}

}  // namespace safety
