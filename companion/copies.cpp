// Each file is written aside, synced and renamed. The temporary file of the films is there from the beginning and gets
// its name last: a folder that has it is unfinished.
#include "companion/copies.h"

#include <algorithm>
#include <filesystem>

#include "companion/unfinished_copies.h"
#include "launcher/copies.h"
#include "runtime/clock.h"
#include "runtime/copies_lock.h"
#include "runtime/record_journal.h"
#include "runtime/whole_io.h"
#include "store/history.h"
#include "store/master_file.h"
#include "store/sort_pass.h"

namespace companion {
namespace {

constexpr std::string_view CopyStart = "Collection ", ZipEnding = ".zip", FilmsEnding = ".dat";
const std::string MasterName(store::MasterFileName);

// The settings and marks.
constexpr std::string_view SmallFiles[] = {
    "AutoSave", "AutoSort", "BGColor", "txtBGColor", "txtForColor", "tagForColor", "Fo", "Fo1", "Last",
};

const std::vector<std::string>& Names() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all(std::begin(SmallFiles), std::end(SmallFiles));
    all.emplace_back(store::WeightsFile);
    for (const store::SortPass& pass : store::SortPasses) {
      all.emplace_back(pass.Keys.Name);
      all.emplace_back(pass.Keys.CountFile);
    }
    all.push_back(runtime::InSafetyFolder(store::HistoryFile));
    all.push_back(MasterName);
    return all;
  }();
  return names;
}

// Nothing if it is longer than `most`.
template <typename File>
std::optional<std::string> AllOf(const File& file, std::size_t most) {
  const std::int64_t length = file.Length();
  if (length > static_cast<std::int64_t>(most)) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(length), '\0');
  bytes.resize(file.Read(bytes.data(), bytes.size(), 0));
  return bytes;
}

// False if it is larger than `most`; a missing file is none. A save that was cut off is read as a start would leave it.
bool ReadFile(runtime::Disk& disk, const std::string& name, std::size_t most, FilesByName& files) {
  try {
    const runtime::OpenFile file(disk, name, runtime::Disk::Mode::Read);
    std::optional<std::string> bytes =
        name == MasterName ? AllOf(runtime::SettledFile(disk, file, store::RecordLength), most) : AllOf(file, most);
    if (!bytes) return false;
    files.emplace(name, *std::move(bytes));
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
  }
  return true;
}

void WriteFile(runtime::Disk& disk, const std::string& name, const std::string& bytes) {
  runtime::WriteAside(disk, name, [&](const runtime::OpenFile& file) { file.Write(bytes, 0); });
}

void SyncFolder(runtime::Disk& disk, const std::string& name) {
  runtime::RetryInterrupted(name, [&] { return disk.SyncFolder(name); });
}

std::string NameOf(CopyKind kind, std::chrono::local_seconds when) {
  const std::string films = launcher::NameOfCopy(when);  // "Recpra STAMP.Dat"
  constexpr std::size_t Stamp = 19;
  return std::string(CopyStart) + films.substr(films.find(' ') + 1, Stamp) +
         std::string(kind == CopyKind::Zip ? ZipEnding : "");
}

// A second later for each copy that has the name.
std::string FreeName(runtime::Disk& copies, CopyKind kind) {
  const std::vector<std::string> taken = copies.List("");
  std::chrono::local_seconds when = runtime::LocalTime();
  const auto is_taken = [&](const std::string& name) {
    return std::any_of(taken.begin(), taken.end(), [&](const std::string& other) { return other.starts_with(name); });
  };
  while (is_taken(NameOf(CopyKind::Folder, when))) when += std::chrono::seconds(1);
  return NameOf(kind, when);
}

// Their new files take the permissions of the master file.
DiskIn DisksLikeTheFilms(const Invocation& invocation) {
  std::error_code none;
  const std::string films = std::filesystem::absolute(invocation.Folder, none) / MasterName;
  return [make_disk = invocation.MakeDisk, films](const std::string& folder) {
    std::unique_ptr<runtime::Disk> disk = make_disk(folder);
    disk->NewFilesLike(films);
    return disk;
  };
}

void WriteFolder(const DiskIn& make_disk, const std::string& folder, const FilesByName& files) {
  const std::unique_ptr<runtime::Disk> copy = make_disk(folder);
  const std::string safety(runtime::SafetyFolder);
  const runtime::OpenFile films = runtime::CreateFresh(*copy, MasterName);
  SyncFolder(*copy, "");
  runtime::MakeSafetyFolder(*copy);
  for (const auto& [name, bytes] : files) {
    if (name != MasterName) WriteFile(*copy, name, bytes);
  }
  SyncFolder(*copy, safety);
  films.Write(files.at(MasterName), 0);
  films.Sync();
  SyncFolder(*copy, "");
  runtime::RetryInterrupted(MasterName, [&] { return copy->Rename(films.Name(), MasterName); });
  SyncFolder(*copy, "");
}

std::optional<FilesByName> ReadZip(runtime::Disk& disk, const std::string& name) {
  FilesByName zip;
  if (!ReadFile(disk, name, LargestCopy, zip) || zip.empty()) return std::nullopt;
  return Unzipped(zip.begin()->second, BelongsToCollection, LargestCopy);
}

bool EndsIn(const std::string& name, std::string_view ending) {
  const std::string end = name.size() < ending.size() ? "" : name.substr(name.size() - ending.size());
  return std::equal(end.begin(), end.end(), ending.begin(), ending.end(), [](char left, char right) {
    return (left >= 'A' && left <= 'Z' ? left - 'A' + 'a' : left) == right;
  });
}

std::optional<FilesByName> ReadAt(const DiskIn& make_disk, const std::string& folder, const std::string& name) {
  std::optional<FilesByName> files;
  if (EndsIn(name, ZipEnding)) {
    files = ReadZip(*make_disk(folder), name);
  } else if (EndsIn(name, FilmsEnding)) {
    FilesByName films;
    if (!ReadFile(*make_disk(folder), name, LargestCopy, films) || films.empty()) return std::nullopt;
    files = FilesByName{{MasterName, std::move(films.begin()->second)}};
  } else {
    files = ReadCollection(*make_disk(folder + "/" + name));
  }
  return files && files->contains(MasterName) ? files : std::nullopt;
}

}  // namespace

bool BelongsToCollection(std::string_view name) {
  return std::find(Names().begin(), Names().end(), name) != Names().end();
}

std::optional<FilesByName> ReadCollection(runtime::Disk& disk) {
  FilesByName files;
  std::size_t left = LargestCopy;
  for (const std::string& name : Names()) {
    if (!ReadFile(disk, name, left, files)) return std::nullopt;
    if (const auto file = files.find(name); file != files.end()) left -= file->second.size();
  }
  return files;
}

std::string CopiesIn(const std::string& collection) { return collection + "/" + std::string(launcher::CopiesFolder); }

std::optional<NamedCopy> CopyOfName(const std::string& name) {
  if (const auto when = launcher::TimeOfCopy(name)) return NamedCopy{name, CopyKind::Films, *when};
  if (!name.starts_with(CopyStart)) return std::nullopt;
  std::string stamp = name.substr(CopyStart.size());
  const bool zip = stamp.ends_with(ZipEnding);
  if (zip) stamp.resize(stamp.size() - ZipEnding.size());
  const auto when = launcher::TimeOfCopy("Recpra " + stamp + ".Dat");
  if (!when) return std::nullopt;
  return NamedCopy{name, zip ? CopyKind::Zip : CopyKind::Folder, *when};
}

std::vector<NamedCopy> ListCopies(runtime::Disk& copies) {
  std::vector<NamedCopy> found;
  for (const std::string& name : copies.List("")) {
    if (std::optional<NamedCopy> copy = CopyOfName(name)) found.push_back(*std::move(copy));
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const NamedCopy& left, const NamedCopy& right) { return left.When < right.When; });
  return found;
}

NewCopy WriteCopy(const Invocation& invocation, const std::string& folder, const FilesByName& files, CopyKind kind) {
  const runtime::CopiesLock lock(folder);
  if (!lock.Held()) return {std::nullopt, true};
  const DiskIn make_disk = DisksLikeTheFilms(invocation);
  RemoveAllUnfinished(make_disk, folder);
  const std::unique_ptr<runtime::Disk> copies = make_disk(folder);
  const std::string name = FreeName(*copies, kind);
  if (kind == CopyKind::Zip) {
    const std::optional<std::string> zip = Zipped(files);
    if (!zip) return {};
    WriteFile(*copies, name, *zip);
  } else {
    runtime::RetryInterrupted(name, [&] { return copies->MakeFolder(name); });
    try {
      WriteFolder(make_disk, folder + "/" + name, files);
    } catch (const runtime::Failure&) {
      RemoveUnfinished(make_disk, folder, name);
      throw;
    }
  }
  SyncFolder(*copies, "");
  return {ReadAt(make_disk, folder, name) == files ? std::optional(name) : std::nullopt};
}

std::optional<FilesByName> ReadOther(const Invocation& invocation, const std::string& name) {
  if (name.find('/') == std::string::npos) {
    if (auto files = ReadAt(invocation.MakeDisk, CopiesIn(invocation.Folder), name)) return files;
    return ReadAt(invocation.MakeDisk, ".", name);
  }
  std::filesystem::path path(name);
  if (!path.has_filename()) path = path.parent_path();  // a folder with a slash after it
  return ReadAt(invocation.MakeDisk, path.parent_path(), path.filename());
}

}  // namespace companion
