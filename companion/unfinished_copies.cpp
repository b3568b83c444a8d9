// A folder is unfinished as long as its films have their temporary name. One without either name is what somebody has
// left of a copy, and stays unless it is empty.
#include "companion/unfinished_copies.h"

#include <algorithm>
#include <cerrno>

#include "companion/copies.h"
#include "runtime/whole_io.h"
#include "store/master_file.h"

namespace companion {
namespace {

const std::string UnfinishedFilms = std::string(store::MasterFileName) + std::string(runtime::AsideEnding);

bool IsTemporary(std::string_view name) { return name.ends_with(runtime::AsideEnding); }

// Without the ending of a temporary file.
std::string BaseOf(std::string_view name) {
  if (IsTemporary(name)) name.remove_suffix(runtime::AsideEnding.size());
  return std::string(name);
}

// The list of the folder does not tell, since it is empty if it cannot be read.
bool MayHaveFilms(runtime::Disk& copy) {
  const int films = copy.Open(std::string(store::MasterFileName), runtime::Disk::Mode::Read);
  if (films >= 0) copy.Close(films);
  return films != -ENOENT;
}

std::vector<std::string> FilesIn(runtime::Disk& copy) {
  const std::string safety(runtime::SafetyFolder);
  std::vector<std::string> names = copy.List(safety);
  std::transform(names.begin(), names.end(), names.begin(), runtime::InSafetyFolder);
  for (std::string& name : copy.List("")) {
    if (name != safety) names.push_back(std::move(name));
  }
  return names;
}

bool IsUnfinished(const std::vector<std::string>& files) {
  return files.empty() || std::find(files.begin(), files.end(), UnfinishedFilms) != files.end();
}

bool IsPartOfACopy(const std::string& name) {
  return name != store::MasterFileName && BelongsToCollection(BaseOf(name));
}

}  // namespace

void RemoveUnfinished(const DiskIn& make_disk, const std::string& folder, const std::string& name) {
  const std::unique_ptr<runtime::Disk> copies = make_disk(folder), copy = make_disk(folder + "/" + name);
  if (MayHaveFilms(*copy) || copies->SyncFolder(name) < 0) return;  // a link cannot be synced
  const std::vector<std::string> files = FilesIn(*copy);
  if (!IsUnfinished(files) || !std::all_of(files.begin(), files.end(), IsPartOfACopy)) return;
  for (const std::string& file : files) {
    if (file != UnfinishedFilms) runtime::Discard(*copy, file);
  }
  copy->RemoveFolder(std::string(runtime::SafetyFolder));
  if (FilesIn(*copy).size() > 1 || copy->SyncFolder("") < 0) return;  // the next copy tries again
  runtime::Discard(*copy, UnfinishedFilms);
  copies->RemoveFolder(name);
}

void RemoveAllUnfinished(const DiskIn& make_disk, const std::string& folder) {
  const std::unique_ptr<runtime::Disk> copies = make_disk(folder);
  for (const std::string& name : copies->List("")) {
    const std::optional<NamedCopy> copy = CopyOfName(BaseOf(name));
    if (!copy) continue;
    if (copy->Kind == CopyKind::Folder && !IsTemporary(name)) RemoveUnfinished(make_disk, folder, name);
    if (copy->Kind == CopyKind::Zip && IsTemporary(name)) runtime::Discard(*copies, name);
  }
}

}  // namespace companion
