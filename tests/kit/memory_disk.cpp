// The live files, kept as nodes, and the log of their changes.
#include "tests/kit/memory_disk.h"

#include <cerrno>
#include <utility>

namespace kit {
namespace {

std::int64_t SectorOf(std::int64_t offset) { return offset / static_cast<std::int64_t>(SectorBytes); }

}  // namespace

std::string FolderOf(const std::string& name) {
  std::size_t slash = name.rfind('/');
  return slash == std::string::npos ? "" : name.substr(0, slash);
}

std::set<std::string> FoldersAbove(std::string name) {
  std::set<std::string> folders;
  while (!name.empty()) folders.insert(name = FolderOf(name));
  return folders;
}

MemoryDisk::MemoryDisk(const Folder& content) : first_(content) {
  for (const auto& [name, bytes] : content) {
    folders_.merge(FoldersAbove(name));
    names_[name] = static_cast<int>(nodes_.size());
    nodes_.push_back(bytes);
  }
}

Folder MemoryDisk::Content() const {
  Folder content;
  for (const auto& [name, node] : names_) content[name] = nodes_[static_cast<std::size_t>(node)];
  return content;
}

void MemoryDisk::FailSync(int handle) {
  log_.push_back({Happened::FailedSync, handles_[static_cast<std::size_t>(handle)], 0, ""});
}

int MemoryDisk::Open(const std::string& name, Mode mode) {
  if (HasFolder(name)) return -EISDIR;
  if (!HasFolder(FolderOf(name))) return -ENOENT;
  auto found = names_.find(name);
  if (found != names_.end() && mode == Mode::CreateNew) return -EEXIST;
  if (found == names_.end()) {
    if (mode != Mode::Create && mode != Mode::CreateNew) return -ENOENT;
    int node = static_cast<int>(nodes_.size());
    nodes_.emplace_back();
    found = names_.emplace(name, node).first;
    log_.push_back({Happened::Enter, node, 0, name});
  }
  handles_.push_back(found->second);
  return static_cast<int>(handles_.size()) - 1;
}

void MemoryDisk::Close(int handle) {
  std::erase_if(locks_, [&](const auto& lock) { return lock.second == handle; });
  handles_[static_cast<std::size_t>(handle)] = -1;
}

std::int64_t MemoryDisk::ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) {
  const std::string& bytes = nodes_.at(static_cast<std::size_t>(handles_[static_cast<std::size_t>(handle)]));
  auto from = static_cast<std::size_t>(offset);
  return from >= bytes.size() ? 0 : static_cast<std::int64_t>(bytes.copy(target, count, from));
}

std::int64_t MemoryDisk::WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) {
  int node = handles_[static_cast<std::size_t>(handle)];
  std::string& bytes = nodes_.at(static_cast<std::size_t>(node));
  auto from = static_cast<std::size_t>(offset);
  if (bytes.size() < from + count) {
    bytes.resize(from + count);
    log_.push_back({Happened::Length, node, static_cast<std::int64_t>(bytes.size()), ""});
  }
  bytes.replace(from, count, source, count);
  LogSectors(node, offset, offset + static_cast<std::int64_t>(count));
  return static_cast<std::int64_t>(count);
}

void MemoryDisk::LogSectors(int node, std::int64_t from, std::int64_t to) {
  const std::string& bytes = nodes_[static_cast<std::size_t>(node)];
  for (std::int64_t sector = SectorOf(from); sector * static_cast<std::int64_t>(SectorBytes) < to; ++sector) {
    std::size_t start = static_cast<std::size_t>(sector) * SectorBytes;
    std::string content = start < bytes.size() ? bytes.substr(start, SectorBytes) : "";
    content.resize(SectorBytes);
    log_.push_back({Happened::Sector, node, sector, std::move(content)});
  }
}

std::int64_t MemoryDisk::Length(int handle) {
  return static_cast<std::int64_t>(
      nodes_.at(static_cast<std::size_t>(handles_[static_cast<std::size_t>(handle)])).size());
}

int MemoryDisk::Truncate(int handle, std::int64_t length) {
  int node = handles_[static_cast<std::size_t>(handle)];
  std::int64_t before = Length(handle);
  if (length == before) return 0;
  nodes_[static_cast<std::size_t>(node)].resize(static_cast<std::size_t>(length));
  log_.push_back({Happened::Length, node, length, ""});
  LogSectors(node, length, before);
  return 0;
}

int MemoryDisk::Sync(int handle) {
  log_.push_back({Happened::Sync, handles_[static_cast<std::size_t>(handle)], 0, ""});
  return 0;
}

int MemoryDisk::Identify(int handle, runtime::FileIdentity& identity) {
  identity = {reinterpret_cast<std::uintptr_t>(this),
              static_cast<std::uint64_t>(handles_[static_cast<std::size_t>(handle)])};
  return 0;
}

int MemoryDisk::Lock(int handle) {
  auto lock = locks_.emplace(handles_[static_cast<std::size_t>(handle)], handle).first;
  return lock->second == handle ? 0 : -EWOULDBLOCK;
}

int MemoryDisk::Modified(int handle, runtime::FileTime& time) {
  time = times_[handles_[static_cast<std::size_t>(handle)]];
  return 0;
}

int MemoryDisk::SetModified(int handle, runtime::FileTime time) {
  times_[handles_[static_cast<std::size_t>(handle)]] = time;
  return 0;
}

int MemoryDisk::Rename(const std::string& from, const std::string& to) {
  auto found = names_.find(from);
  if (found == names_.end() || !HasFolder(FolderOf(to))) return -ENOENT;
  int node = found->second;
  names_.erase(found);
  names_[to] = node;
  log_.push_back({Happened::Move, node, 0, from, to});
  return 0;
}

int MemoryDisk::Remove(const std::string& name) {
  if (names_.erase(name) == 0) return -ENOENT;
  log_.push_back({Happened::Leave, -1, 0, name});
  return 0;
}

int MemoryDisk::MakeFolder(const std::string& name) {
  if (names_.contains(name)) return -EEXIST;
  if (folders_.insert(name).second) log_.push_back({Happened::Folder, -1, 0, name});
  return 0;
}

int MemoryDisk::RemoveFolder(const std::string& name) {
  if (!HasFolder(name)) return -ENOENT;
  if (!NamesIn(name).empty()) return -ENOTEMPTY;
  folders_.erase(name);
  log_.push_back({Happened::NoFolder, -1, 0, name});
  return 0;
}

int MemoryDisk::SyncFolder(const std::string& name) {
  if (!HasFolder(name)) return -ENOENT;
  log_.push_back({Happened::FolderSync, -1, 0, name});
  return 0;
}

std::vector<std::string> MemoryDisk::List(const std::string& folder) {
  const std::set<std::string> names = NamesIn(folder);
  return {names.begin(), names.end()};
}

std::set<std::string> MemoryDisk::NamesIn(const std::string& folder) const {
  std::set<std::string> names;
  const auto add = [&](const std::string& name) {
    if (!name.empty() && FolderOf(name) == folder) names.insert(folder.empty() ? name : name.substr(folder.size() + 1));
  };
  for (const auto& [name, node] : names_) add(name);
  for (const std::string& name : folders_) add(name);
  return names;
}

}  // namespace kit
