// Areas of the grid, in twips.
#include "desktop/covered.h"

#include <QRegion>
#include <algorithm>

#include "forms/window.h"

namespace desktop {
namespace {

QRect AreaOf(const forms::Control& control) {
  const forms::Place& place = control.Place;
  return {place.Left, place.Top, place.Width, place.Height};
}

bool Covers(const forms::Control& control) {
  return control.Visible() && !control.Look().Transparent && control.Kind != forms::Kind::MenuItem;
}

qint64 SizeOf(const QRegion& region) {
  qint64 size = 0;
  for (const QRect& part : region) size += static_cast<qint64>(part.width()) * part.height();
  return size;
}

}  // namespace

bool Covered(const forms::Control& control) {
  const auto& all = control.Owner().Controls();
  QRect whole = AreaOf(control);
  QRegion left = whole;
  for (auto over = std::find(all.begin(), all.end(), &control); over != all.end(); ++over) {
    QRect area = AreaOf(**over);
    if (*over != &control && area.intersects(whole) && Covers(**over)) left -= area;
  }
  return SizeOf(left) * 2 < SizeOf(whole);
}

}  // namespace desktop
