// Reads and writes that go on until all of it is done; a failure throws the Failure that names it and the file.
#pragma once

#include <cerrno>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/disk.h"
#include "runtime/failure.h"

namespace runtime {

// Everything that the safety of the files needs lies in this folder of the collection.
inline constexpr std::string_view SafetyFolder = ".reelora";
std::string InSafetyFolder(std::string_view name);

// The result, or the Failure of its error number.
std::int64_t Checked(std::int64_t result, std::string_view file);

// Makes a call of the disk, once more where a signal cut it short before it had done anything; the result, or the
// Failure of its error number. Every call but Close, Remove and List goes through here.
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
  // Throws where the file cannot be opened.
  OpenFile(Disk& disk, std::string name, Disk::Mode mode);
  OpenFile(OpenFile&& other) noexcept;
  OpenFile& operator=(OpenFile&&) = delete;
  ~OpenFile();

  const std::string& Name() const { return name_; }
  std::int64_t Length() const;
  // Bytes delivered: count, or fewer where the file ends.
  std::size_t Read(char* target, std::size_t count, std::int64_t offset) const;
  void Write(std::string_view bytes, std::int64_t offset) const;
  void Truncate(std::int64_t length) const;
  // A sync that has failed is never tried again: it could report success for bytes that the disk has dropped.
  void Sync() const;

 private:
  Disk* disk_;
  std::string name_;
  int handle_;
};

// Makes the safety folder; throws where it cannot be made.
void MakeSafetyFolder(Disk& disk);
// What was made, replaced or renamed in the safety folder and in the collection's own stays; file: whose failure it is.
void SyncFolders(Disk& disk, std::string_view file);

// Writes a whole file aside, synced, and puts it in the place of the named one; a stop at any moment leaves the old
// file or the new one.
void ReplaceFile(Disk& disk, std::string_view name, std::string_view content);
// Puts a complete, synced file of the safety folder in the place of the named one.
void TakePlace(Disk& disk, std::string_view aside, std::string_view name);
// Removes a temporary file; a failure is ignored, since the file does no harm.
void Discard(Disk& disk, const std::string& name);
// Discards what a stop left in the safety folder.
void RemoveLeftovers(Disk& disk);

// The ending of files that are only on their way.
inline constexpr std::string_view AsideEnding = ".new";

}  // namespace runtime
