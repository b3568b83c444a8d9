// A disk in memory that knows what of it a sync has made sure of, and can tell every folder that a loss of power could
// leave behind: sectors of 512 bytes, lengths and names reach the disk each by itself and in any order until a sync.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "runtime/disk.h"

namespace kit {

// Names, those in the safety folder with its name before them, and contents.
using Folder = std::map<std::string, std::string>;

inline constexpr std::size_t SectorBytes = 512;

class MemoryDisk final : public runtime::Disk {
 public:
  // The content is there and safe.
  explicit MemoryDisk(const Folder& content);

  // What a program finds now.
  Folder Content() const;
  // How many things have happened to the disk; each number up to it is a moment at which the power can fail.
  std::size_t Moments() const { return log_.size(); }
  // What the disk may hold when the power fails at that moment: all of it where there are no more than most states,
  // else nothing of what is unsafe, all of it, and a choice that is the same in each run.
  std::vector<Folder> AfterPowerLoss(std::size_t moment, std::size_t most) const;
  // A sync of the file has failed: what it was to make sure of may be dropped in silence, unless it is written again.
  void FailSync(int handle);

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

 private:
  enum class Happened { Sector, Length, Enter, Leave, Move, Folder, Sync, FailedSync, FolderSync };
  struct Event {
    Happened What;
    int Node = -1;
    std::int64_t Number = 0;  // of the sector, or the length
    std::string Text;         // the sector's bytes, or a name
    std::string To = {};      // the second name of a move
  };
  struct Replay;
  void LogSectors(int node, std::int64_t from, std::int64_t to);
  bool HasFolder(const std::string& name) const { return folders_.contains(name); }

  std::vector<std::string> nodes_;
  std::map<std::string, int> names_;
  std::set<std::string> folders_ = {""};
  std::vector<int> handles_;
  std::vector<Event> log_;
  Folder first_;
};

// The folder's part of a name, "" for none.
std::string FolderOf(const std::string& name);

}  // namespace kit
