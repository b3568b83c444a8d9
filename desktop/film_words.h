// What is said of a film, or of a page of the list, that has come up on the record screen.
#pragma once

#include <QString>

#include "screen/frmPage1.h"

namespace desktop {

// Title, director, format and position; the first and the last title while the list of twenty is up.
QString FilmWords(frmPage1& window);

// Which films and pages have come up since it was asked last.
class FilmNews {
 public:
  explicit FilmNews(frmPage1& window) : window_(window) {}
  // "" if none has.
  QString Take();

 private:
  frmPage1& window_;
  unsigned told_ = 0;
};

}  // namespace desktop
