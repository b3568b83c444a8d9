// Saves what a window shows, and a page as a printer would print it.
#include "desktop/picture.h"

#include <QFile>
#include <QImage>
#include <QPageLayout>
#include <QPixmap>
#include <QWidget>

#include "desktop/page_painter.h"

namespace desktop {

bool SavePicture(QWidget& window, const std::string& path) {
  return window.grab().save(QFile::decodeName(path.c_str()), "PNG");
}

bool SavePagePicture(const runtime::PrintJob& job, std::size_t page, const std::string& path) {
  constexpr int Resolution = 96;
  QPageLayout sheet(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(18, 18, 18, 18));
  QImage image(sheet.fullRectPixels(Resolution).size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QRect area = sheet.paintRectPixels(Resolution);
  QPainter painter(&image);
  painter.translate(area.topLeft());
  PagePainter pages(job, area.size(), Resolution);
  pages.Paint(painter, SheetsOf(job, pages.LinesOnSheet()).at(page));
  painter.end();
  return image.save(QFile::decodeName(path.c_str()), "PNG");
}

}  // namespace desktop
