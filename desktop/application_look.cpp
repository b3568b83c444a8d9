// One style, so that the windows look the same on every desktop.
#include "desktop/application_look.h"

#include <QApplication>
#include <QIcon>
#include <QStyleFactory>

#include "desktop/artwork.h"

namespace desktop {

void SetUpLook() {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setQuitOnLastWindowClosed(false);
  QIcon icon;
  for (int side : {16, 32, 48, 128}) icon.addPixmap(Artwork("reelora", {side, side}, 1));
  QApplication::setWindowIcon(icon);
}

}  // namespace desktop
