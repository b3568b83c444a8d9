// A loss of power: the log is played again up to the moment, and for all that is not safe then a value is chosen.
#include <algorithm>
#include <map>
#include <random>
#include <utility>

#include "tests/kit/memory_disk.h"

namespace kit {
namespace {

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
  if (change.What == Happened::NoFolder) folders.erase(change.Text);
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
    const std::set<std::string> above = FoldersAbove(name);
    if (std::includes(folders.begin(), folders.end(), above.begin(), above.end())) folder[name] = contents[node];
  }
  return folder;
}

std::vector<Folder> MemoryDisk::AfterPowerLoss(std::size_t moment, std::size_t most) const {
  Replay replay;
  for (const auto& [name, bytes] : first_) {
    int node = static_cast<int>(replay.Names.size());
    replay.Names[name] = node;
    replay.Folders.merge(FoldersAbove(name));
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

}  // namespace kit
