// A disk in memory that tracks what is synced and enumerates every state a power failure can leave: until a sync,
// sectors of 512 bytes, lengths and names reach the disk separately and in any order.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "runtime/disk.h"

namespace kit {

// Contents by name; names in a subfolder begin with its name.
using Folder = std::map<std::string, std::string>;

inline constexpr std::size_t SectorBytes = 512;

class MemoryDisk final : public runtime::Disk {
 public:
  // The content counts as synced.
  explicit MemoryDisk(const Folder& content);

  // The files as a program sees them now.
  Folder Content() const;
  // The count of changes so far; each number up to it is a moment at which the power can fail.
  std::size_t Moments() const { return log_.size(); }
  // The states the disk can be in after a power failure at that moment: all if at most `most`, else none of the
  // unsynced changes, all of them, and a fixed sample.
  std::vector<Folder> AfterPowerLoss(std::size_t moment, std::size_t most) const;
  // A sync of the file fails: its unsynced data may be lost silently unless written again.
  void FailSync(int handle);

  int Open(const std::string& name, Mode mode) override;
  void Close(int handle) override;
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override;
  std::int64_t Length(int handle) override;
  int Truncate(int handle, std::int64_t length) override;
  int Sync(int handle) override;
  int Identify(int handle, runtime::FileIdentity& identity) override;
  int Lock(int handle) override;
  int Modified(int handle, runtime::FileTime& time) override;
  int SetModified(int handle, runtime::FileTime time) override;
  int Rename(const std::string& from, const std::string& to) override;
  int Remove(const std::string& name) override;
  int MakeFolder(const std::string& name) override;
  int RemoveFolder(const std::string& name) override;
  int SyncFolder(const std::string& name) override;
  std::vector<std::string> List(const std::string& folder) override;

 private:
  enum class Happened { Sector, Length, Enter, Leave, Move, Folder, NoFolder, Sync, FailedSync, FolderSync };
  struct Event {
    Happened What;
    int Node = -1;
    std::int64_t Number = 0;  // of the sector, or the length
    std::string Text;         // the sector's bytes, or a name
    std::string To = {};      // the second name of a move
  };
  struct Replay;
  void LogSectors(int node, std::int64_t from, std::int64_t to);
  std::set<std::string> NamesIn(const std::string& folder) const;
  bool HasFolder(const std::string& name) const { return folders_.contains(name); }

  std::vector<std::string> nodes_;
  std::map<int, runtime::FileTime> times_;  // of nodes; a power failure leaves them as they are
  std::map<std::string, int> names_;
  std::set<std::string> folders_ = {""};
  std::vector<int> handles_;
  std::map<int, int> locks_;  // the handle that has locked a node
  std::vector<Event> log_;
  Folder first_;
};

// The folder part of a name, "" if it has none.
std::string FolderOf(const std::string& name);
// All folders above it, down to "".
std::set<std::string> FoldersAbove(std::string name);

}  // namespace kit
