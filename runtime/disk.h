// The disk below the numbered files: a folder and the few calls that the system makes on it. RealDisk is the real one;
// tests have others that keep files in memory, fail, cut calls short or stop at a chosen call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace runtime {

// Folder for journal, history, lock and temporary files, in the collection.
inline constexpr std::string_view SafetyFolder = ".reelora";

// Since 1970, UTC; before it the seconds are negative.
struct FileTime {
  std::int64_t Seconds = 0;
  std::int32_t Nanoseconds = 0;
  bool operator==(const FileTime&) const = default;
};

// Tells a file from every other one, whatever their names.
struct FileIdentity {
  std::uint64_t Device = 0;
  std::uint64_t Number = 0;
  bool operator==(const FileIdentity&) const = default;
};

// Every call returns a negative system error number (-ENOENT, ...) on failure. Names are relative to the disk's folder.
class Disk {
 public:
  // Create and CreateNew: for reading and writing, created empty if missing; CreateNew fails with -EEXIST otherwise.
  enum class Mode { Read, ReadWrite, Create, CreateNew };
  virtual ~Disk() = default;

  // Returns a handle of 0 or more. What is not a regular file is refused, without waiting for it.
  virtual int Open(const std::string& name, Mode mode) = 0;
  virtual void Close(int handle) = 0;
  // Return the bytes read or written, perhaps fewer than count. Offsets and lengths in bytes.
  virtual std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) = 0;
  virtual std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) = 0;
  virtual std::int64_t Length(int handle) = 0;
  virtual int Truncate(int handle, std::int64_t length) = 0;
  // Announces how long the file will become, so that the disk can reserve the space at once. Promises nothing and
  // changes neither length nor content.
  virtual void Reserve(int, std::int64_t) {}
  virtual int Sync(int handle) = 0;
  virtual int Identify(int handle, FileIdentity& identity) = 0;
  // Locks the file for this handle until it is closed, however its program ends. Fails with -EWOULDBLOCK if another
  // handle has the lock. Reads and writes ask for none. A disk that knows no locks always succeeds.
  virtual int Lock(int) { return 0; }
  // Time of the last change. A disk that keeps no times leaves it as it is, and setting one succeeds.
  virtual int Modified(int handle, FileTime& time) = 0;
  virtual int SetModified(int handle, FileTime time) = 0;

  // Replaces an existing target.
  virtual int Rename(const std::string& from, const std::string& to) = 0;
  virtual int Remove(const std::string& name) = 0;
  // Succeeds if it exists.
  virtual int MakeFolder(const std::string& name) = 0;
  // Fails unless it is empty.
  virtual int RemoveFolder(const std::string& name) = 0;
  // "" for the disk's own folder.
  virtual int SyncFolder(const std::string& name) = 0;
  // The names in a folder, sorted; empty if it does not exist.
  virtual std::vector<std::string> List(const std::string& folder) = 0;
  // From now on new files take the permissions of the named one, if there is one; its name may be an absolute path.
  virtual void NewFilesLike(const std::string&) {}
};

// The files below a folder of this machine. A symbolic link in the safety folder, or in place of it, is never followed;
// elsewhere as `links` says.
class RealDisk final : public Disk {
 public:
  enum class Links { Followed, Refused };
  explicit RealDisk(std::string folder, Links links = Links::Followed);
  const std::string& Folder() const { return folder_; }

  int Open(const std::string& name, Mode mode) override;
  void Close(int handle) override;
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override;
  std::int64_t Length(int handle) override;
  int Truncate(int handle, std::int64_t length) override;
  void Reserve(int handle, std::int64_t length) override;
  int Sync(int handle) override;
  int Identify(int handle, FileIdentity& identity) override;
  int Lock(int handle) override;
  int Modified(int handle, FileTime& time) override;
  int SetModified(int handle, FileTime time) override;
  int Rename(const std::string& from, const std::string& to) override;
  int Remove(const std::string& name) override;
  int MakeFolder(const std::string& name) override;
  int RemoveFolder(const std::string& name) override;
  int SyncFolder(const std::string& name) override;
  std::vector<std::string> List(const std::string& folder) override;
  void NewFilesLike(const std::string& name) override { like_ = name; }

 private:
  std::string PathOf(const std::string& name) const;
  // Whether the name is one of the safety folder and that is a symbolic link.
  bool IsBehindLink(const std::string& name) const;
  int OpenPath(const std::string& name, int flags) const;
  std::string folder_;
  Links links_;
  std::string like_;
};

}  // namespace runtime
