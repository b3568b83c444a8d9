// Finds the mounted disks.
#include "desktop/drives.h"

#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <algorithm>
#include <vector>

namespace desktop {
namespace {

// Volumes under /media or /run/media, where desktops mount removable disks; sorted by path.
std::vector<std::string> RemovableDisks() {
  std::vector<std::string> disks;
  for (const QStorageInfo& disk : QStorageInfo::mountedVolumes()) {
    std::string place = QFile::encodeName(disk.rootPath()).toStdString();
    if (disk.isReady() && (place.starts_with("/media/") || place.starts_with("/run/media/"))) disks.push_back(place);
  }
  std::sort(disks.begin(), disks.end());
  return disks;
}

}  // namespace

std::string DriveLetters() { return RemovableDisks().size() > 1 ? "abc" : "ac"; }

std::optional<std::string> DriveFolder(char letter, const std::string& folder) {
  if (letter == 'c') return QFile::encodeName(QStorageInfo(QFile::decodeName(folder.c_str())).rootPath()).toStdString();
  std::vector<std::string> disks = RemovableDisks();
  auto number = static_cast<std::size_t>(letter - 'a');
  if (letter < 'a' || number >= std::min<std::size_t>(disks.size(), 2)) return std::nullopt;
  return disks[number];
}

QString DiskName(const std::string& folder) {
  QString path = QFile::decodeName(folder.c_str());
  QString label = QStorageInfo(path).name();
  return label.isEmpty() ? QFileInfo(path).fileName() : label;
}

}  // namespace desktop
