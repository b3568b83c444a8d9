// Fields, messages and page switch are three parts, with a thin line between each two.
#include "desktop/ground.h"

#include <QPainter>

#include "desktop/contrast.h"
#include "desktop/grid.h"

namespace desktop {
namespace {

constexpr int LineOpacity = 100;  // of 255

struct Line {
  std::string_view Window;
  forms::Place Place;  // as wide as the fields
};
constexpr Line Lines[] = {{"frmPage1", {60, 5225, 8535, 0}}, {"frmPage1", {60, 6735, 8535, 0}}};

}  // namespace

Ground::Ground(QWidget& parent, const forms::Window& window) : QWidget(&parent), window_(window) {
  setAutoFillBackground(true);
}

void Ground::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor back = palette().color(QPalette::Window);
  QColor colour = Contrast(Qt::white, back) > Contrast(Qt::black, back) ? Qt::white : Qt::black;
  colour.setAlpha(LineOpacity);
  Grid grid = Grid::Of(size(), window_.Width, window_.Height);
  for (const Line& line : Lines) {
    if (line.Window != window_.Name) continue;
    QRect area = grid.Area(line.Place);
    painter.fillRect(area.left(), area.top(), area.width(), 1, colour);
  }
}

}  // namespace desktop
