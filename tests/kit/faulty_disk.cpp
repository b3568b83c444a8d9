// Counts calls and applies the fault.
#include "tests/kit/faulty_disk.h"

#include <algorithm>
#include <cerrno>

namespace kit {
namespace {

constexpr std::int64_t PageBytes = 4096;

// Where a write is cut: at a page boundary, or at that of a sector, or in half.
std::size_t CutOf(std::size_t count, std::int64_t offset) {
  for (std::int64_t unit : {PageBytes, static_cast<std::int64_t>(SectorBytes)}) {
    auto to_border = static_cast<std::size_t>(unit - offset % unit);
    if (to_border < count) return to_border;
  }
  return count / 2;
}

}  // namespace

std::string_view NameOf(Fault fault) {
  constexpr std::string_view Names[] = {"full",  "error",           "refused", "interrupted",
                                        "short", "short then full", "kill",    "kill halfway"};
  return Names[static_cast<std::size_t>(fault)];
}

void FaultyDisk::Arm(FaultPlan plan) {
  plan_ = plan;
  plan_.At += calls_;
  planned_ = true;
}

bool FaultyDisk::IsDue() {
  if (killed_) throw Killed();
  std::size_t call = calls_++;
  return planned_ && (call == plan_.At || (plan_.FromThenOn && call > plan_.At));
}

int FaultyDisk::ErrorOfCall() {
  switch (plan_.As) {
    case Fault::Full:
      return -ENOSPC;
    case Fault::Error:
      return -EIO;
    case Fault::Refused:
      return -EACCES;
    case Fault::Interrupted:
      return -EINTR;
    case Fault::Kill:
      killed_ = true;
      throw Killed();
    default:
      return 0;
  }
}

// A call that cannot be done in part.
template <typename Call>
auto FaultyDisk::Made(Call call) -> decltype(call()) {
  if (!IsDue()) return call();
  if (int error = ErrorOfCall(); error != 0) return error;
  auto result = call();
  if (plan_.As == Fault::KillHalfway) {
    killed_ = true;
    throw Killed();
  }
  return result;
}

int FaultyDisk::Open(const std::string& name, Mode mode) {
  return Made([&] { return below_.Open(name, mode); });
}

std::int64_t FaultyDisk::ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) {
  if (planned_ && plan_.As == Fault::Short && IsDue())
    return below_.ReadAt(handle, target, std::max<std::size_t>(count / 2, 1), offset);
  if (planned_ && plan_.As == Fault::Short) return below_.ReadAt(handle, target, count, offset);
  return Made([&] { return below_.ReadAt(handle, target, count, offset); });
}

std::int64_t FaultyDisk::WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) {
  bool due = IsDue();
  if (full_) {
    full_ = plan_.FromThenOn;
    return -ENOSPC;
  }
  if (!due) return below_.WriteAt(handle, source, count, offset);
  if (int error = ErrorOfCall(); error != 0) return error;
  full_ = plan_.As == Fault::ShortThenFull;
  std::int64_t done = below_.WriteAt(handle, source, std::max<std::size_t>(CutOf(count, offset), 1), offset);
  if (plan_.As != Fault::KillHalfway) return done;
  killed_ = true;
  throw Killed();
}

std::int64_t FaultyDisk::Length(int handle) {
  return Made([&] { return below_.Length(handle); });
}

int FaultyDisk::Truncate(int handle, std::int64_t length) {
  return Made([&] { return below_.Truncate(handle, length); });
}

int FaultyDisk::Sync(int handle) {
  int result = Made([&] { return below_.Sync(handle); });
  if (result < 0 && result != -EINTR) below_.FailSync(handle);
  return result;
}

int FaultyDisk::Identify(int handle, runtime::FileIdentity& identity) {
  return Made([&] { return below_.Identify(handle, identity); });
}

int FaultyDisk::Lock(int handle) {
  return Made([&] { return below_.Lock(handle); });
}

int FaultyDisk::Modified(int handle, runtime::FileTime& time) {
  return Made([&] { return below_.Modified(handle, time); });
}

int FaultyDisk::SetModified(int handle, runtime::FileTime time) {
  return Made([&] { return below_.SetModified(handle, time); });
}

int FaultyDisk::Rename(const std::string& from, const std::string& to) {
  return Made([&] { return below_.Rename(from, to); });
}

int FaultyDisk::Remove(const std::string& name) {
  return Made([&] { return below_.Remove(name); });
}

int FaultyDisk::MakeFolder(const std::string& name) {
  return Made([&] { return below_.MakeFolder(name); });
}

int FaultyDisk::RemoveFolder(const std::string& name) {
  return Made([&] { return below_.RemoveFolder(name); });
}

int FaultyDisk::SyncFolder(const std::string& name) {
  return Made([&] { return below_.SyncFolder(name); });
}

std::vector<std::string> FaultyDisk::List(const std::string& folder) {
  if (planned_ && plan_.As == Fault::Interrupted) return below_.List(folder);
  std::vector<std::string> names;
  int error = Made([&] {
    names = below_.List(folder);
    return 0;
  });
  return error == 0 ? names : std::vector<std::string>();
}

}  // namespace kit
