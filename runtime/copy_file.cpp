// Copies in blocks to a hidden file next to the target, syncs it and renames it.
#include "runtime/copy_file.h"

#include <string_view>
#include <variant>

#include "runtime/clock.h"
#include "runtime/failure.h"
#include "runtime/whole_io.h"

namespace runtime {
namespace {

constexpr std::size_t BlockBytes = 256 * 1024;

// The temporary file's name begins so; a hidden file, and of one length for every target.
const std::string AsideBase = ".reelora-copy";

void RemoveStoppedCopies(Disk& disk) {
  for (const std::string& name : disk.List("")) {
    if (name.starts_with(AsideBase) && name.ends_with(AsideEnding)) Discard(disk, name);
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

// Returns the temporary file's name. No file is left after a failure.
std::variant<std::string, NoRoom> WriteAside(const OpenFile& source, Disk& disk) {
  std::string name;
  std::int64_t taken = 0;
  try {
    OpenFile aside = CreateFresh(disk, AsideBase);
    name = aside.Name();
    try {
      WriteContent(source, aside);
    } catch (const Failure& failure) {
      if (failure.Name == DiskFull) taken = aside.Length();
      throw;
    }
    aside.SetModified(source.Modified());
    aside.Sync();
    return name;
  } catch (const Failure& failure) {
    if (!name.empty()) Discard(disk, name);
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

std::string WriteAsideOrInPlace(const OpenFile& source, Disk& disk, const std::string& target_name) {
  std::variant<std::string, NoRoom> first = WriteAside(source, disk);
  if (auto* name = std::get_if<std::string>(&first)) return *name;
  const NoRoom& none = std::get<NoRoom>(first);
  if (!MakesRoom(source, disk, target_name, none.Taken)) throw Failure(none.Why);
  RetryInterrupted(target_name, [&] { return disk.Remove(target_name); });
  std::variant<std::string, NoRoom> second = WriteAside(source, disk);
  if (auto* name = std::get_if<std::string>(&second)) return *name;
  throw Failure(std::get<NoRoom>(second).Why);
}

}  // namespace

Copied CopyFile(Disk& source_disk, const std::string& source_name, Disk& target_disk, const std::string& target_name) {
  OpenFile source(source_disk, source_name, Disk::Mode::Read);
  RemoveStoppedCopies(target_disk);
  const std::string aside = WriteAsideOrInPlace(source, target_disk, target_name);
  try {
    RetryInterrupted(target_name, [&] { return target_disk.Rename(aside, target_name); });
  } catch (const Failure&) {
    Discard(target_disk, aside);
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
