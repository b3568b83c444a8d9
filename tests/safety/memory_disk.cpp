// The live files stand in nodes; the log of what happened to them is played again for a loss of power.
#include "tests/safety/memory_disk.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <map>
#include <random>
#include <utility>

namespace safety {
namespace {

std::int64_t SectorOf(std::int64_t offset) { return offset / static_cast<std::int64_t>(SectorBytes); }

// Something on the disk that takes its values in turn: what is safe, and the values since, of which any may be found.
template <typename Value>
struct Cell {
  Value Safe{};
  std::vector<Value> Since;
  bool Dropped = false;  // a failed sync was to make sure of the last of them

  void Take(Value value) {
    Since.push_back(std::move(value));
    Dropped = false;
  }
  void MakeSafe() {
    if (Since.empty() || Dropped) return;
    Safe = std::move(Since.back());
    Since.clear();
  }
  const Value& Choice(std::size_t choice) const { return choice == 0 ? Safe : Since[choice - 1]; }
};

}  // namespace

std::string FolderOf(const std::string& name) {
  std::size_t slash = name.rfind('/');
  return slash == std::string::npos ? "" : name.substr(0, slash);
}

// The disk as it stands after a part of the log.
struct MemoryDisk::Replay {
  // A change of names; each of the folders that it concerns has to be synced before it is safe.
  struct NameChange {
    Event Change;
    std::set<std::string> Unsynced;
  };

  std::map<std::pair<int, std::int64_t>, Cell<std::string>> Sectors;
  std::map<int, Cell<std::int64_t>> Lengths;
  std::vector<NameChange> Changes;
  std::map<std::string, int> Names;
  std::set<std::string> Folders = {""};

  void Play(const Event& event);
  void PlaySync(int node, bool failed);
  void PlayFolderSync(const std::string& folder);
  static void Apply(const Event& change, std::map<std::string, int>& names, std::set<std::string>& folders);
  // How many choices each thing that is not safe leaves.
  std::vector<std::size_t> Choices() const;
  Folder Chosen(const std::vector<std::size_t>& choices) const;
};

void MemoryDisk::Replay::Play(const Event& event) {
  switch (event.What) {
    case Happened::Sector:
      Sectors[{event.Node, event.Number}].Take(event.Text);
      Lengths[event.Node].Dropped = false;  // a write makes the disk note the length anew
      return;
    case Happened::Length:
      Lengths[event.Node].Take(event.Number);
      return;
    case Happened::Sync:
    case Happened::FailedSync:
      PlaySync(event.Node, event.What == Happened::FailedSync);
      return;
    case Happened::FolderSync:
      PlayFolderSync(event.Text);
      return;
    default:
      Changes.push_back({event, {FolderOf(event.Text)}});
      if (event.What == Happened::Move) Changes.back().Unsynced.insert(FolderOf(event.To));
  }
}

void MemoryDisk::Replay::PlaySync(int node, bool failed) {
  for (auto& [place, cell] : Sectors) {
    if (place.first != node) continue;
    if (failed) cell.Dropped = true;
    cell.MakeSafe();
  }
  if (failed) Lengths[node].Dropped = true;
  Lengths[node].MakeSafe();
}

void MemoryDisk::Replay::PlayFolderSync(const std::string& folder) {
  for (NameChange& change : Changes) change.Unsynced.erase(folder);
  std::erase_if(Changes, [this](const NameChange& change) {
    if (change.Unsynced.empty()) Apply(change.Change, Names, Folders);
    return change.Unsynced.empty();
  });
}

void MemoryDisk::Replay::Apply(const Event& change, std::map<std::string, int>& names, std::set<std::string>& folders) {
  if (change.What == Happened::Folder) folders.insert(change.Text);
  if (change.What == Happened::Enter) names[change.Text] = change.Node;
  if (change.What == Happened::Leave || change.What == Happened::Move) names.erase(change.Text);
  if (change.What == Happened::Move) names[change.To] = change.Node;
}

std::vector<std::size_t> MemoryDisk::Replay::Choices() const {
  std::vector<std::size_t> choices;
  for (const auto& [place, cell] : Sectors) choices.push_back(cell.Since.size() + 1);
  for (const auto& [node, cell] : Lengths) choices.push_back(cell.Since.size() + 1);
  choices.insert(choices.end(), Changes.size(), 2);
  return choices;
}

Folder MemoryDisk::Replay::Chosen(const std::vector<std::size_t>& choices) const {
  auto choice = choices.begin();
  std::map<int, std::string> contents;
  for (const auto& [place, cell] : Sectors) {
    const std::string& bytes = cell.Choice(*choice++);
    std::string& content = contents[place.first];
    auto offset = static_cast<std::size_t>(place.second) * SectorBytes;
    if (content.size() < offset + SectorBytes) content.resize(offset + SectorBytes);
    content.replace(offset, bytes.size(), bytes);
  }
  for (const auto& [node, cell] : Lengths) contents[node].resize(static_cast<std::size_t>(cell.Choice(*choice++)));
  std::map<std::string, int> names = Names;
  std::set<std::string> folders = Folders;
  for (const NameChange& change : Changes) {
    if (*choice++ == 1) Apply(change.Change, names, folders);
  }
  Folder folder;
  for (const auto& [name, node] : names) {
    if (folders.contains(FolderOf(name))) folder[name] = contents[node];
  }
  return folder;
}

MemoryDisk::MemoryDisk(const Folder& content) : first_(content) {
  for (const auto& [name, bytes] : content) {
    folders_.insert(FolderOf(name));
    names_[name] = static_cast<int>(nodes_.size());
    nodes_.push_back(bytes);
  }
}

Folder MemoryDisk::Content() const {
  Folder content;
  for (const auto& [name, node] : names_) content[name] = nodes_[static_cast<std::size_t>(node)];
  return content;
}

std::vector<Folder> MemoryDisk::AfterPowerLoss(std::size_t moment, std::size_t most) const {
  Replay replay;
  for (const auto& [name, bytes] : first_) {
    int node = static_cast<int>(replay.Names.size());
    replay.Names[name] = node;
    replay.Folders.insert(FolderOf(name));
    replay.Lengths[node].Safe = static_cast<std::int64_t>(bytes.size());
    for (std::size_t offset = 0; offset < bytes.size(); offset += SectorBytes)
      replay.Sectors[{node, static_cast<std::int64_t>(offset / SectorBytes)}].Safe = bytes.substr(offset, SectorBytes);
  }
  for (std::size_t event = 0; event < moment; ++event) replay.Play(log_[event]);

  const std::vector<std::size_t> ways = replay.Choices();
  std::size_t states = 1;
  for (std::size_t way : ways) states = std::min(states * way, most + 1);
  std::vector<Folder> folders;
  std::vector<std::size_t> choices(ways.size(), 0);
  if (states <= most) {
    for (std::size_t state = 0; state < states; ++state) {
      folders.push_back(replay.Chosen(choices));
      for (std::size_t place = 0; place < ways.size() && ++choices[place] == ways[place]; ++place) choices[place] = 0;
    }
    return folders;
  }
  std::mt19937 random(static_cast<std::uint32_t>(moment));
  folders.push_back(replay.Chosen(choices));
  std::transform(ways.begin(), ways.end(), choices.begin(), [](std::size_t way) { return way - 1; });
  folders.push_back(replay.Chosen(choices));
  while (folders.size() < most) {
    std::transform(ways.begin(), ways.end(), choices.begin(), [&](std::size_t way) { return random() % way; });
    folders.push_back(replay.Chosen(choices));
  }
  return folders;
}

void MemoryDisk::FailSync(int handle) {
  log_.push_back({Happened::FailedSync, handles_[static_cast<std::size_t>(handle)], 0, ""});
}

int MemoryDisk::Open(const std::string& name, Mode mode) {
  if (HasFolder(name)) return -EISDIR;
  if (!HasFolder(FolderOf(name))) return -ENOENT;
  auto found = names_.find(name);
  if (found == names_.end()) {
    if (mode != Mode::Create) return -ENOENT;
    int node = static_cast<int>(nodes_.size());
    nodes_.emplace_back();
    found = names_.emplace(name, node).first;
    log_.push_back({Happened::Enter, node, 0, name});
  }
  handles_.push_back(found->second);
  return static_cast<int>(handles_.size()) - 1;
}

void MemoryDisk::Close(int handle) { handles_[static_cast<std::size_t>(handle)] = -1; }

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

int MemoryDisk::SyncFolder(const std::string& name) {
  if (!HasFolder(name)) return -ENOENT;
  log_.push_back({Happened::FolderSync, -1, 0, name});
  return 0;
}

std::vector<std::string> MemoryDisk::List(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& [name, node] : names_) {
    if (FolderOf(name) == folder) names.push_back(folder.empty() ? name : name.substr(folder.size() + 1));
  }
  return names;
}

}  // namespace safety
