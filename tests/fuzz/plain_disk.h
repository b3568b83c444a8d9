// A disk in memory for millions of short runs: it keeps no log, counts its calls, and can have a file that is longer
// than its bytes.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/disk.h"
#include "tests/kit/memory_disk.h"

namespace fuzz {

// Thrown by the call past the limit, and by every one after it.
struct TooManyCalls {};

// Reads and writes may come from two threads.
class PlainDisk final : public runtime::Disk {
 public:
  explicit PlainDisk(const kit::Folder& content = {});

  // The content of a file; "" if it is missing.
  std::string Content(const std::string& name) const;
  kit::Folder Content() const;
  // Zeros behind its bytes that take no memory.
  void SetLength(const std::string& name, std::int64_t length);
  // Of bytes, lengths and names, so far.
  std::size_t Changes() const { return changes_; }
  // From now on, at most that many calls.
  void Allow(std::size_t calls) { allowed_ = calls; }

  int Open(const std::string& name, Mode mode) override;
  void Close(int handle) override { handles_[static_cast<std::size_t>(handle)] = nullptr; }
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override;
  std::int64_t Length(int handle) override;
  int Truncate(int handle, std::int64_t length) override;
  int Sync(int) override { return Called(); }
  int Identify(int handle, runtime::FileIdentity& identity) override;
  int Modified(int, runtime::FileTime&) override { return Called(); }
  int SetModified(int, runtime::FileTime) override { return Called(); }
  int Rename(const std::string& from, const std::string& to) override;
  int Remove(const std::string& name) override;
  int MakeFolder(const std::string&) override { return Called(); }
  int RemoveFolder(const std::string&) override { return Called(); }
  int SyncFolder(const std::string&) override { return Called(); }
  std::vector<std::string> List(const std::string& folder) override;

 private:
  struct File {
    std::string Bytes;
    std::int64_t Length = 0;  // at least that of the bytes
  };
  int Called();
  File& At(int handle) { return *handles_[static_cast<std::size_t>(handle)]; }

  std::map<std::string, std::shared_ptr<File>> files_;
  std::vector<std::shared_ptr<File>> handles_;
  std::size_t changes_ = 0;
  std::size_t allowed_ = 1'000'000;
  std::mutex mutex_;
};

}  // namespace fuzz
