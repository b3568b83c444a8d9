// Whether a disk can have files without a name, in which a report is written.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <QFile>

namespace desktop {

inline bool TakesUnnamedFiles(const QString& folder) {
  const int handle = ::open(QFile::encodeName(folder).constData(), O_TMPFILE | O_RDWR, 0600);
  if (handle >= 0) ::close(handle);
  return handle >= 0;
}

}  // namespace desktop
