// Starts the program, compares the folder and searches for lost films.
#include "tests/safety/soundness.h"

#include <algorithm>
#include <iterator>

#include "runtime/whole_io.h"
#include "store/film_record.h"
#include "store/history.h"
#include "store/master_file.h"
#include "tests/kit/passing_disk.h"
#include "tests/safety/steps.h"

namespace safety {
namespace {

const std::string MasterName(store::MasterFileName);

// A file of the safety folder, or one that a stopped copy has left.
bool IsOurs(const std::string& name) {
  return kit::FolderOf(name) == runtime::SafetyFolder || name.ends_with(runtime::AsideEnding);
}

bool IsIn(std::string_view history, std::string_view record) {
  constexpr std::size_t EntryLength = store::HistoryHeadLength + store::RecordLength;
  for (; history.size() >= EntryLength; history.remove_prefix(EntryLength)) {
    if (history.substr(store::HistoryHeadLength, record.size()) == record) return true;
  }
  return false;
}

// Complains about the first film of `before` that is neither in its slot nor in the history.
std::string FilmLost(const kit::Folder& before, const kit::Folder& found) {
  auto contents = [](const kit::Folder& folder, const std::string& name) {
    auto file = folder.find(name);
    return file == folder.end() ? std::string() : file->second;
  };
  std::string old_master = contents(before, MasterName), master = contents(found, MasterName);
  std::string history = contents(found, runtime::InSafetyFolder("history"));
  for (std::size_t at = 0; at + store::RecordLength <= old_master.size(); at += store::RecordLength) {
    std::string film = old_master.substr(at, store::RecordLength);
    bool is_film = film.find_first_not_of(' ') < static_cast<std::size_t>(store::RowOf(store::FilmField::Title).Width);
    if (!is_film || master.compare(at, film.size(), film) == 0 || IsIn(history, film)) continue;
    return "the film of slot " + std::to_string(at / store::RecordLength + 1) + " is not in the history";
  }
  return "";
}

}  // namespace

kit::Folder Visible(const kit::Folder& content) {
  kit::Folder visible;
  std::copy_if(content.begin(), content.end(), std::inserter(visible, visible.end()),
               [](const auto& file) { return !IsOurs(file.first); });
  return visible;
}

std::unique_ptr<runtime::Disk> Wrapped(runtime::Disk& below, const DiskWrapper& wrapper) {
  if (wrapper) return wrapper(below);
  return std::make_unique<kit::PassingDisk>(below);
}

std::string Complaint(kit::MemoryDisk& disk, const std::vector<kit::Folder>& allowed, const kit::Folder& before,
                      const DiskWrapper& wrapper) {
  std::unique_ptr<runtime::Disk> wrapped = Wrapped(disk, wrapper);
  StartedProgram started(*wrapped);
  if (started.Program.Stopped()) {
    const runtime::Failure& failure = *started.Program.Stopped();
    return "the start stops: " + std::string(failure.Name) + ", " + failure.File;
  }
  kit::Folder found = disk.Content();
  kit::Folder visible = Visible(found);
  if (std::find(allowed.begin(), allowed.end(), visible) != allowed.end())
    return FilmLost(before, found) + FilmLost(allowed.front(), found);
  std::string complaint = "a folder that is neither the old one nor the new one:";
  for (const auto& [name, content] : visible) {
    auto wanted = allowed.front().find(name);
    if (wanted == allowed.front().end() || wanted->second != content) complaint += " " + name;
  }
  return complaint;
}

std::string Complaint(const kit::Folder& found, const std::vector<kit::Folder>& allowed, const kit::Folder& before,
                      const DiskWrapper& wrapper) {
  kit::MemoryDisk disk(found);
  return Complaint(disk, allowed, before, wrapper);
}

}  // namespace safety
