// Draws the SVG files of the program's resources.
#include "desktop/artwork.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <cmath>

#include "desktop/text.h"

// A static library's resources must be initialized, and the macro works only outside a namespace.
static void LoadPictures() { Q_INIT_RESOURCE(pictures); }

namespace desktop {
namespace {

QString FileOf(std::string_view stem) {
  static const bool loaded = (LoadPictures(), true);
  static_cast<void>(loaded);
  return QStringLiteral(":/pictures/%1.svg").arg(Shown(stem));
}

}  // namespace

QPixmap Artwork(std::string_view stem, QSize size, double ratio) {
  if (size.isEmpty() || !QFile::exists(FileOf(stem))) return {};
  QString key = QStringLiteral("%1 %2 %3 %4").arg(Shown(stem)).arg(size.width()).arg(size.height()).arg(ratio);
  QPixmap picture;
  if (QPixmapCache::find(key, &picture)) return picture;
  picture =
      QPixmap(static_cast<int>(std::ceil(size.width() * ratio)), static_cast<int>(std::ceil(size.height() * ratio)));
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  QSvgRenderer(FileOf(stem)).render(&painter);
  painter.end();
  picture.setDevicePixelRatio(ratio);
  QPixmapCache::insert(key, picture);
  return picture;
}

QSize ArtworkSize(std::string_view stem) {
  return QFile::exists(FileOf(stem)) ? QSvgRenderer(FileOf(stem)).defaultSize() : QSize();
}

}  // namespace desktop
