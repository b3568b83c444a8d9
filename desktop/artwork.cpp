// Draws the SVG files of the program's resources.
#include "desktop/artwork.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <cmath>
#include <map>
#include <memory>
#include <string>

#include "desktop/text.h"

// A static library's resources must be initialized, and the macro works only outside a namespace.
static void LoadPictures() { Q_INIT_RESOURCE(pictures); }

namespace desktop {
namespace {

// A drawing is parsed once, however many sizes of it are drawn. nullptr if there is no such picture.
QSvgRenderer* Drawing(std::string_view stem) {
  static const bool loaded = (LoadPictures(), true);
  static_cast<void>(loaded);
  static std::map<std::string, std::unique_ptr<QSvgRenderer>, std::less<>> drawings;
  auto found = drawings.find(stem);
  if (found == drawings.end()) {
    QString file = QStringLiteral(":/pictures/%1.svg").arg(Shown(stem));
    found = drawings.emplace(stem, QFile::exists(file) ? std::make_unique<QSvgRenderer>(file) : nullptr).first;
  }
  return found->second.get();
}

}  // namespace

QPixmap Artwork(std::string_view stem, QSize size, double ratio) {
  if (size.isEmpty()) return {};
  QString key = QStringLiteral("%1 %2 %3 %4").arg(Shown(stem)).arg(size.width()).arg(size.height()).arg(ratio);
  QPixmap picture;
  if (QPixmapCache::find(key, &picture)) return picture;
  QSvgRenderer* drawing = Drawing(stem);
  if (!drawing) return {};
  picture =
      QPixmap(static_cast<int>(std::ceil(size.width() * ratio)), static_cast<int>(std::ceil(size.height() * ratio)));
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing->render(&painter);
  painter.end();
  picture.setDevicePixelRatio(ratio);
  QPixmapCache::insert(key, picture);
  return picture;
}

QSize ArtworkSize(std::string_view stem) {
  const QSvgRenderer* drawing = Drawing(stem);
  return drawing ? drawing->defaultSize() : QSize();
}

}  // namespace desktop
