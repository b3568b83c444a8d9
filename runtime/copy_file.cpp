// Copies in blocks to a hidden file next to the target, syncs it and renames it.
#include "runtime/copy_file.h"

#include <cerrno>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "runtime/clock.h"
#include "runtime/failure.h"
#include "runtime/whole_io.h"

namespace runtime {
namespace {

constexpr std::size_t BlockBytes = 256 * 1024;

// The temporary file's name begins so; a hidden file, and of one length for every target.
const std::string AsideBase = ".reelora-copy";

// Never a file of another program that has its name by then.
void DiscardOwn(Disk& disk, const OpenFile& file) {
  try {
    if (HasItsName(disk, file)) Discard(disk, file.Name());
  } catch (const Failure&) {
    return;  // a leftover does no harm
  }
}

// Some network disks lock only files that are open for writing.
OpenFile OpenToLock(Disk& disk, const std::string& name) {
  try {
    return {disk, name, Disk::Mode::ReadWrite};
  } catch (const Failure&) {
    return {disk, name, Disk::Mode::Read};
  }
}

// A copy has its temporary file locked, so one that can be locked was left by a copy that was stopped.
void RemoveStoppedCopies(Disk& disk) {
  for (const std::string& name : disk.List("")) {
    if (!name.starts_with(AsideBase) || !name.ends_with(AsideEnding)) continue;
    try {
      const OpenFile left = OpenToLock(disk, name);
      if (left.Lock()) DiscardOwn(disk, left);
    } catch (const Failure&) {
      continue;  // a leftover does no harm
    }
  }
}

void WriteContent(const OpenFile& source, const OpenFile& target) {
  std::string block(BlockBytes, '\0');
  std::int64_t offset = 0;
  while (std::size_t read = source.Read(block.data(), block.size(), offset)) {
    target.Write(std::string_view(block).substr(0, read), offset);
    offset += static_cast<std::int64_t>(read);
  }
}

// A copy that found the target's disk full.
struct NoRoom {
  Failure Why;
  std::int64_t Taken = 0;  // bytes that the disk took, of which it is certain
};

// Returns the temporary file. None is left after a failure.
std::variant<OpenFile, NoRoom> WriteAside(const OpenFile& source, Disk& disk) {
  std::optional<OpenFile> aside;
  std::int64_t taken = 0;
  try {
    aside.emplace(CreateFresh(disk, AsideBase));
    // Another copy that locks it first removes it; that is noticed before the rename.
    static_cast<void>(aside->Lock());
    try {
      WriteContent(source, *aside);
    } catch (const Failure& failure) {
      if (failure.Name == DiskFull) taken = aside->Length();
      throw;
    }
    aside->SetModified(source.Modified());
    aside->Sync();
    return *std::move(aside);
  } catch (const Failure& failure) {
    if (aside) DiscardOwn(disk, *aside);
    if (failure.Name != DiskFull) throw;
    return NoRoom{failure, taken};
  }
}

// Whether the disk has room for the source once the target is gone, and they are two files.
bool MakesRoom(const OpenFile& source, Disk& disk, const std::string& target_name, std::int64_t taken) {
  try {
    OpenFile target(disk, target_name, Disk::Mode::Read);
    return target.Identity() != source.Identity() && taken + target.Length() >= source.Length();
  } catch (const Failure& failure) {
    if (failure.Name == FileNotFound) return false;
    throw;
  }
}

OpenFile WriteAsideOrInPlace(const OpenFile& source, Disk& disk, const std::string& target_name) {
  std::variant<OpenFile, NoRoom> first = WriteAside(source, disk);
  if (auto* aside = std::get_if<OpenFile>(&first)) return std::move(*aside);
  const NoRoom& none = std::get<NoRoom>(first);
  if (!MakesRoom(source, disk, target_name, none.Taken)) throw Failure(none.Why);
  RetryInterrupted(target_name, [&] { return disk.Remove(target_name); });
  std::variant<OpenFile, NoRoom> second = WriteAside(source, disk);
  if (auto* aside = std::get_if<OpenFile>(&second)) return std::move(*aside);
  throw Failure(std::get<NoRoom>(second).Why);
}

}  // namespace

Copied CopyFile(Disk& source_disk, const std::string& source_name, Disk& target_disk, const std::string& target_name) {
  OpenFile source(source_disk, source_name, Disk::Mode::Read);
  RemoveStoppedCopies(target_disk);
  const OpenFile aside = WriteAsideOrInPlace(source, target_disk, target_name);
  try {
    if (!HasItsName(target_disk, aside)) throw Failure{PathError, target_name, ESTALE};
    RetryInterrupted(target_name, [&] { return target_disk.Rename(aside.Name(), target_name); });
  } catch (const Failure&) {
    DiscardOwn(target_disk, aside);
    throw;
  }
  try {
    RetryInterrupted(target_name, [&] { return target_disk.SyncFolder(""); });
  } catch (const Failure&) {
    return Copied::Unconfirmed;  // the new file has the old one's name already
  }
  return Copied::Confirmed;
}

FileFacts FactsOf(Disk& disk, const std::string& name) {
  OpenFile file(disk, name, Disk::Mode::Read);
  return {LocalTime(file.Modified().Seconds), file.Length()};
}

}  // namespace runtime
