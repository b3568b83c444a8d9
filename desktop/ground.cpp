// Paints the bands below the controls.
#include "desktop/ground.h"

#include <QPainter>

#include "desktop/contrast.h"
#include "desktop/control_view.h"
#include "desktop/grid.h"

namespace desktop {
namespace {

constexpr double ShadePart = 0.3;  // of black or white

struct Band {
  std::string_view Window;
  forms::Place Place;  // as wide as the window
};
constexpr Band Bands[] = {{"frmPage1", {0, 760, 8655, 250}}, {"frmPage1", {0, 6710, 8655, 490}}};

// The first label in a band; nearly all others there have its colour.
const forms::Control* WordsIn(const forms::Window& window) {
  for (const Band& band : Bands)
    for (const forms::Control* control : window.Controls())
      if (band.Window == window.Name && control->Kind == forms::Kind::Label && band.Place.Contains(control->Place))
        return control;
  return nullptr;
}

}  // namespace

Ground::Ground(QWidget& parent, const forms::Window& window)
    : QWidget(&parent), window_(window), words_(WordsIn(window)) {
  setAutoFillBackground(true);
}

void Ground::Sync() {
  if (words_ && shade_ != Shade()) update();
}

// Away from the colour of the words, so that these stand out all the more.
QColor Ground::Shade() const {
  QColor back = palette().color(QPalette::Window);
  QColor words = ToColour(words_->Look().Fore);
  bool lighter = Contrast(words, Qt::black) > Contrast(back, Qt::black);
  return Mixed(back, lighter ? Qt::black : Qt::white, ShadePart);
}

void Ground::paintEvent(QPaintEvent*) {
  if (!words_) return;
  shade_ = Shade();
  QPainter painter(this);
  Grid grid = Grid::Of(size(), window_.Width, window_.Height);
  for (const Band& band : Bands)
    if (band.Window == window_.Name) painter.fillRect(grid.Area(band.Place), shade_);
}

}  // namespace desktop
