// Places and font sizes in pixels.
#include "desktop/grid.h"

#include <algorithm>
#include <cmath>

namespace desktop {

Grid Grid::Of(QSize surface, int width, int height) {
  return {static_cast<double>(surface.width()) / width, static_cast<double>(surface.height()) / height};
}

QRect Grid::Area(const forms::Place& place) const {
  auto edge = [](double position) { return static_cast<int>(std::lround(position)); };
  QPoint from(edge(place.Left * Across), edge(place.Top * Down));
  QPoint to(edge((place.Left + place.Width) * Across), edge((place.Top + place.Height) * Down));
  return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

int Grid::Pixels(double points) const {
  return std::max(1, static_cast<int>(std::lround(points * TwipsPerPoint * std::min(Across, Down))));
}

QStringList FontFamilies() { return {QStringLiteral("Liberation Sans"), QStringLiteral("Arial")}; }

// All font names of the forms map to the one family.
QFont Grid::Font(const forms::Look& look) const {
  QFont font;
  font.setFamilies(FontFamilies());
  font.setPixelSize(Pixels(look.FontSize));
  font.setBold(look.Bold);
  return font;
}

}  // namespace desktop
