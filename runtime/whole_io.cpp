// Complete reads and writes, and the replacement of whole files.
#include "runtime/whole_io.h"

#include <cerrno>

namespace runtime {

std::string InSafetyFolder(std::string_view name) { return std::string(SafetyFolder) + "/" + std::string(name); }

std::int64_t Checked(std::int64_t result, std::string_view file) {
  auto error = static_cast<int>(-result);
  if (result < 0) throw Failure{NameOfSystemError(error), std::string(file), error};
  return result;
}

OpenFile::OpenFile(Disk& disk, std::string name, Disk::Mode mode) : disk_(&disk), name_(std::move(name)) {
  handle_ = static_cast<int>(RetryInterrupted(name_, [&] { return disk.Open(name_, mode); }));
}

OpenFile::OpenFile(OpenFile&& other) noexcept
    : disk_(other.disk_), name_(std::move(other.name_)), handle_(std::exchange(other.handle_, -1)) {}

OpenFile::~OpenFile() {
  if (handle_ >= 0) disk_->Close(handle_);
}

std::int64_t OpenFile::Length() const {
  return RetryInterrupted(name_, [&] { return disk_->Length(handle_); });
}

FileIdentity OpenFile::Identity() const {
  FileIdentity identity;
  RetryInterrupted(name_, [&] { return disk_->Identify(handle_, identity); });
  return identity;
}

bool OpenFile::Lock() const {
  bool locked = true;
  RetryInterrupted(name_, [&] {
    const int result = disk_->Lock(handle_);
    locked = result != -EWOULDBLOCK;
    return locked ? result : 0;
  });
  return locked;
}

FileTime OpenFile::Modified() const {
  FileTime time;
  RetryInterrupted(name_, [&] { return disk_->Modified(handle_, time); });
  return time;
}

void OpenFile::SetModified(FileTime time) const {
  RetryInterrupted(name_, [&] { return disk_->SetModified(handle_, time); });
}

std::size_t OpenFile::Read(char* target, std::size_t count, std::int64_t offset) const {
  std::size_t done = 0;
  while (done < count) {
    std::int64_t from = offset + static_cast<std::int64_t>(done);
    std::int64_t part =
        RetryInterrupted(name_, [&] { return disk_->ReadAt(handle_, target + done, count - done, from); });
    if (part == 0) break;
    done += static_cast<std::size_t>(part);
  }
  return done;
}

void OpenFile::Write(std::string_view bytes, std::int64_t offset) const {
  while (!bytes.empty()) {
    std::int64_t part =
        RetryInterrupted(name_, [&] { return disk_->WriteAt(handle_, bytes.data(), bytes.size(), offset); });
    if (part == 0) throw Failure{DeviceError, name_};
    bytes.remove_prefix(static_cast<std::size_t>(part));
    offset += part;
  }
}

void OpenFile::Truncate(std::int64_t length) const {
  RetryInterrupted(name_, [&] { return disk_->Truncate(handle_, length); });
}

void OpenFile::Sync() const {
  RetryInterrupted(name_, [&] { return disk_->Sync(handle_); });
}

bool CanBeListed(Disk& disk, const std::string& folder) {
  int handle = 0;
  do {
    handle = disk.Open(folder, Disk::Mode::Read);
  } while (handle == -EINTR);
  if (handle >= 0) disk.Close(handle);
  return handle == -EISDIR || handle == -ENOENT;
}

bool HasItsName(Disk& disk, const OpenFile& file) {
  try {
    return OpenFile(disk, file.Name(), Disk::Mode::Read).Identity() == file.Identity();
  } catch (const Failure& failure) {
    if (failure.Name == FileNotFound) return false;
    throw;
  }
}

void MakeSafetyFolder(Disk& disk) {
  RetryInterrupted(SafetyFolder, [&] { return disk.MakeFolder(std::string(SafetyFolder)); });
}

void SyncFolders(Disk& disk, std::string_view file) {
  RetryInterrupted(file, [&] { return disk.SyncFolder(std::string(SafetyFolder)); });
  RetryInterrupted(file, [&] { return disk.SyncFolder(""); });
}

OpenFile CreateFresh(Disk& disk, const std::string& base) {
  constexpr int LastNumber = 1000;
  for (int number = 1;; ++number) {
    std::string name = base;
    if (number > 1) name += "." + std::to_string(number);
    name += AsideEnding;
    int handle = 0;
    do {
      handle = disk.Open(name, Disk::Mode::CreateNew);
    } while (handle == -EINTR);
    if (handle == -EEXIST && number < LastNumber) continue;
    Checked(handle, name);
    return {disk, std::move(name), handle};
  }
}

namespace {

enum class Durable { Yes, No };

// Writes a temporary file and renames it to the target; base: of its name.
void WriteAndRename(Disk& disk, const std::string& base, const std::string& target,
                    const std::function<void(const OpenFile&)>& write, Durable durable) {
  const OpenFile aside = CreateFresh(disk, base);
  try {
    write(aside);
    if (durable == Durable::Yes) aside.Sync();
    RetryInterrupted(target, [&] { return disk.Rename(aside.Name(), target); });
  } catch (const Failure&) {
    Discard(disk, aside.Name());
    throw;
  }
}

// By way of the safety folder.
void Replace(Disk& disk, std::string_view name, const std::string& target, std::string_view content, Durable durable) {
  MakeSafetyFolder(disk);
  const auto write = [&](const OpenFile& file) { file.Write(content, 0); };
  WriteAndRename(disk, InSafetyFolder(name), target, write, durable);
}

}  // namespace

void WriteAside(Disk& disk, const std::string& name, const std::function<void(const OpenFile&)>& write) {
  WriteAndRename(disk, name, name, write, Durable::Yes);
}

void ReplaceFile(Disk& disk, std::string_view name, std::string_view content) {
  Replace(disk, name, std::string(name), content, Durable::Yes);
}

void ReplaceUnsynced(Disk& disk, std::string_view name, std::string_view content) {
  Replace(disk, name, InSafetyFolder(name), content, Durable::No);
}

void Discard(Disk& disk, const std::string& name) {
  while (disk.Remove(name) == -EINTR) {
  }
}

void RemoveLeftovers(Disk& disk) {
  for (const std::string& name : disk.List(std::string(SafetyFolder))) {
    if (name.ends_with(AsideEnding)) Discard(disk, InSafetyFolder(name));
  }
}

}  // namespace runtime
