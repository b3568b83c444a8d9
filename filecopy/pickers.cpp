// File names are UTF-8 on the disk and Windows-1252 in the lists; a name that Windows-1252 cannot express is not
// listed.
#include "filecopy/pickers.h"

#include <cerrno>
#include <utility>

#include "runtime/code_page.h"
#include "runtime/text.h"

namespace filecopy {
namespace {

constexpr std::string_view FolderAbove = "..";

std::string Joined(std::string_view path, std::string_view name) {
  return path.empty() ? std::string(name) : std::string(path) + "/" + std::string(name);
}

bool IsFolder(runtime::Disk& disk, const std::string& name) {
  int handle = disk.Open(name, runtime::Disk::Mode::Read);
  if (handle >= 0) disk.Close(handle);
  return handle == -EISDIR;
}

}  // namespace

DriveList::DriveList(forms::Window& owner, std::string name, forms::ControlIds ids, const forms::Look& look,
                     forms::Place place)
    : ListBox(owner, std::move(name), ids, look, place) {
  Click = [this] { forms::Run(Change); };
}

void DriveList::Refresh(std::string_view letters) {
  for (char letter : letters) Add(std::string{letter, ':'});
}

FolderList::FolderList(forms::Window& owner, std::string name, const forms::Look& look, forms::Place place,
                       runtime::Disk& disk)
    : ListBox(owner, std::move(name), {}, look, place), disk_(disk) {
  DblClick = [this] {
    std::string chosen = Selected();
    if (chosen == FolderAbove) {
      SetPath(path_.substr(0, path_.find_last_of('/') == std::string::npos ? 0 : path_.find_last_of('/')));
    } else if (!chosen.empty()) {
      SetPath(Joined(path_, runtime::ToUtf8(chosen)));
    }
  };
}

void FolderList::SetPath(std::string_view path) {
  if (path == path_) return;
  path_ = path;
  Refresh();
  forms::Run(Change);
}

void FolderList::Refresh() {
  Empty();
  if (!path_.empty()) Add(FolderAbove);
  for (const std::string& name : disk_.List(path_)) {
    if (name.starts_with('.') || !IsFolder(disk_, Joined(path_, name))) continue;
    if (auto shown = runtime::FromUtf8(name)) Add(*shown);
  }
}

FileList::FileList(forms::Window& owner, std::string name, forms::ControlIds ids, const forms::Look& look,
                   forms::Place place, runtime::Disk& disk, std::string_view ending)
    : ListBox(owner, std::move(name), ids, look, place, Order::Sorted), disk_(disk), ending_(runtime::Upper(ending)) {}

void FileList::SetPath(std::string_view path) {
  if (path == path_) return;
  path_ = path;
  Empty();
  Refresh();
}

void FileList::Refresh() {
  for (const std::string& name : disk_.List(path_)) {
    auto shown = runtime::FromUtf8(name);
    if (!shown || !runtime::Upper(*shown).ends_with(ending_) || IsFolder(disk_, Joined(path_, name))) continue;
    Add(*shown);
  }
}

std::string FileList::OnDisk(std::string_view file) const { return Joined(path_, runtime::ToUtf8(file)); }

}  // namespace filecopy
