// Complete reads and writes; partial ones are continued. A failed call throws the Failure that names it and the file.
#pragma once

#include <cerrno>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/disk.h"
#include "runtime/failure.h"

namespace runtime {

std::string InSafetyFolder(std::string_view name);

// Returns the result or throws the Failure of its error number.
std::int64_t Checked(std::int64_t result, std::string_view file);

// Calls the disk, repeated while a signal interrupts it; returns the result or throws the Failure of its error number.
// Every call but Close, Remove and List goes through here.
template <typename Call>
std::int64_t RetryInterrupted(std::string_view file, Call call) {
  std::int64_t result = 0;
  do {
    result = call();
  } while (result == -EINTR);
  return Checked(result, file);
}

// An open handle that closes itself.
class OpenFile {
 public:
  // Throws if the file cannot be opened.
  OpenFile(Disk& disk, std::string name, Disk::Mode mode);
  // Takes over an open handle.
  OpenFile(Disk& disk, std::string name, int handle) : disk_(&disk), name_(std::move(name)), handle_(handle) {}
  OpenFile(OpenFile&& other) noexcept;
  OpenFile& operator=(OpenFile&&) = delete;
  ~OpenFile();

  const std::string& Name() const { return name_; }
  std::int64_t Length() const;
  FileIdentity Identity() const;
  // Returns whether it is locked until it is closed; not if another program has locked it.
  bool Lock() const;
  FileTime Modified() const;
  void SetModified(FileTime time) const;
  // Returns the bytes read: count, or fewer at the end of the file.
  std::size_t Read(char* target, std::size_t count, std::int64_t offset) const;
  void Write(std::string_view bytes, std::int64_t offset) const;
  void Truncate(std::int64_t length) const;
  // Call before writing that many bytes.
  void Reserve(std::int64_t length) const { disk_->Reserve(handle_, length); }
  // A failed sync is never repeated: the second may report success for lost data.
  void Sync() const;

 private:
  Disk* disk_;
  std::string name_;
  int handle_;
};

// False if the user may not list the folder, or it is none: List calls it empty. True if it is missing.
bool CanBeListed(Disk& disk, const std::string& folder);

// Whether the file's name still leads to it, and not to another one or to none.
bool HasItsName(Disk& disk, const OpenFile& file);

// Makes the safety folder; throws if it cannot be made.
void MakeSafetyFolder(Disk& disk);
// Makes name changes in both folders durable; file: named in a Failure.
void SyncFolders(Disk& disk, std::string_view file);

// Creates a temporary file, never reusing one that exists: BASE.new, or BASE.2.new and so on if that is taken.
OpenFile CreateFresh(Disk& disk, const std::string& base);
// Calls `write` with a temporary file next to the named one, syncs it and puts it in place of that; a stop at any
// moment leaves the old file or the new one. The new one is durable once its folder is synced.
void WriteAside(Disk& disk, const std::string& name, const std::function<void(const OpenFile&)>& write);
// Writes a whole file to a temporary one, syncs it and puts it in place of the named one; a stop at any moment leaves
// the old file or the new one. The new one is durable once the folders are synced.
void ReplaceFile(Disk& disk, std::string_view name, std::string_view content);
// The same for a file of the safety folder and without a sync: a kill leaves the old file or the new one, a loss of
// power soon after perhaps neither. For a file that has a checksum.
void ReplaceUnsynced(Disk& disk, std::string_view name, std::string_view content);
// Removes a temporary file; a failure is ignored, since the file does no harm.
void Discard(Disk& disk, const std::string& name);
// Discards what a stop left in the safety folder.
void RemoveLeftovers(Disk& disk);

// Suffix of temporary files.
inline constexpr std::string_view AsideEnding = ".new";

}  // namespace runtime
