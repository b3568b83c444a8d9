// Grabs what the window shows.
#include "desktop/picture.h"

#include <QFile>
#include <QPixmap>
#include <QWidget>

namespace desktop {

bool SavePicture(QWidget& window, const std::string& path) {
  return window.grab().save(QFile::decodeName(path.c_str()), "PNG");
}

}  // namespace desktop
