// The lists of the copy window: drives, folders, files.
#pragma once

#include <string>
#include <string_view>

#include "forms/window.h"
#include "runtime/disk.h"

namespace filecopy {

// "a:", "b:", "c:". A click on a drive runs Change.
class DriveList : public forms::ListBox {
 public:
  DriveList(forms::Window& owner, std::string name, forms::ControlIds ids, const forms::Look& look, forms::Place place);
  // Adds the drives not listed yet.
  void Refresh(std::string_view letters);
};

// The folders in a folder; a double click opens one. Path: relative to the program's folder, "" for that folder.
class FolderList : public forms::ListBox {
 public:
  FolderList(forms::Window& owner, std::string name, const forms::Look& look, forms::Place place, runtime::Disk& disk);
  const std::string& Path() const { return path_; }
  // Runs Change if the path is a new one.
  void SetPath(std::string_view path);
  void Refresh();

 private:
  runtime::Disk& disk_;
  std::string path_;
};

// The files in a folder whose names end as the pattern says, in any case of letters.
class FileList : public forms::ListBox {
 public:
  FileList(forms::Window& owner, std::string name, forms::ControlIds ids, const forms::Look& look, forms::Place place,
           runtime::Disk& disk, std::string_view ending);
  // Reads the folder where the path differs from the present one.
  void SetPath(std::string_view path);
  // Adds the files that have come since; the selection stays.
  void Refresh();
  // Name, from the program's folder, of a listed file on the disk.
  std::string OnDisk(std::string_view file) const;

 private:
  runtime::Disk& disk_;
  std::string ending_;
  std::string path_;
};

}  // namespace filecopy
