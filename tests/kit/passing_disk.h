// Forwards every call to another disk; a derived disk changes a few of them.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "runtime/disk.h"

namespace kit {

class PassingDisk : public runtime::Disk {
 public:
  explicit PassingDisk(runtime::Disk& below) : below_(below) {}

  int Open(const std::string& name, Mode mode) override {
    int handle = below_.Open(name, mode);
    if (handle >= 0) names_[handle] = name;
    return handle;
  }
  void Close(int handle) override { below_.Close(handle); }
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    return below_.ReadAt(handle, target, count, offset);
  }
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    return below_.WriteAt(handle, source, count, offset);
  }
  std::int64_t Length(int handle) override { return below_.Length(handle); }
  int Truncate(int handle, std::int64_t length) override { return below_.Truncate(handle, length); }
  void Reserve(int handle, std::int64_t length) override { below_.Reserve(handle, length); }
  int Sync(int handle) override { return below_.Sync(handle); }
  int Identify(int handle, runtime::FileIdentity& identity) override { return below_.Identify(handle, identity); }
  int Lock(int handle) override { return below_.Lock(handle); }
  int Modified(int handle, runtime::FileTime& time) override { return below_.Modified(handle, time); }
  int SetModified(int handle, runtime::FileTime time) override { return below_.SetModified(handle, time); }
  int Rename(const std::string& from, const std::string& to) override { return below_.Rename(from, to); }
  int Remove(const std::string& name) override { return below_.Remove(name); }
  int MakeFolder(const std::string& name) override { return below_.MakeFolder(name); }
  int RemoveFolder(const std::string& name) override { return below_.RemoveFolder(name); }
  int SyncFolder(const std::string& name) override { return below_.SyncFolder(name); }
  std::vector<std::string> List(const std::string& folder) override { return below_.List(folder); }
  void NewFilesLike(const std::string& name) override { below_.NewFilesLike(name); }

 protected:
  runtime::Disk& Below() { return below_; }
  // The name under which the handle was opened.
  const std::string& NameOf(int handle) { return names_[handle]; }

 private:
  runtime::Disk& below_;
  std::map<int, std::string> names_;
};

}  // namespace kit
