// The disk below the numbered files: a folder and the few calls that the system makes on it. RealDisk is the real one;
// tests have others that keep files in memory, fail, cut calls short or stop at a chosen call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace runtime {

// Every call returns a negative system error number (-ENOENT, ...) on failure. Names are relative to the disk's folder.
class Disk {
 public:
  enum class Mode { Read, ReadWrite, Create };  // Create: for reading and writing, created empty if missing
  virtual ~Disk() = default;

  // Returns a handle of 0 or more.
  virtual int Open(const std::string& name, Mode mode) = 0;
  virtual void Close(int handle) = 0;
  // Return the bytes read or written, perhaps fewer than count. Offsets and lengths in bytes.
  virtual std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) = 0;
  virtual std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) = 0;
  virtual std::int64_t Length(int handle) = 0;
  virtual int Truncate(int handle, std::int64_t length) = 0;
  virtual int Sync(int handle) = 0;

  // Replaces an existing target.
  virtual int Rename(const std::string& from, const std::string& to) = 0;
  virtual int Remove(const std::string& name) = 0;
  // Succeeds if it exists.
  virtual int MakeFolder(const std::string& name) = 0;
  // "" for the disk's own folder.
  virtual int SyncFolder(const std::string& name) = 0;
  // The names in a folder, sorted; empty if it does not exist.
  virtual std::vector<std::string> List(const std::string& folder) = 0;
  // Time of the last change in seconds since 1970, UTC; 0 on a disk that keeps no times.
  virtual std::int64_t Modified(const std::string&) { return 0; }
};

// The files below a folder of this machine.
class RealDisk final : public Disk {
 public:
  explicit RealDisk(std::string folder);
  const std::string& Folder() const { return folder_; }

  int Open(const std::string& name, Mode mode) override;
  void Close(int handle) override;
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override;
  std::int64_t Length(int handle) override;
  int Truncate(int handle, std::int64_t length) override;
  int Sync(int handle) override;
  int Rename(const std::string& from, const std::string& to) override;
  int Remove(const std::string& name) override;
  int MakeFolder(const std::string& name) override;
  int SyncFolder(const std::string& name) override;
  std::vector<std::string> List(const std::string& folder) override;
  std::int64_t Modified(const std::string& name) override;

 private:
  std::string PathOf(const std::string& name) const;
  std::string folder_;
};

}  // namespace runtime
