// The system's own pictures, drawn at the size that is asked for.
#pragma once

#include <QPixmap>
#include <QSize>
#include <string_view>

namespace desktop {

// Stem: the file's name without its ending. Size in toolkit pixels, ratio that of the display. Empty where there is no
// such picture.
QPixmap Artwork(std::string_view stem, QSize size, double ratio);
// Of the drawing itself; only its proportion means something.
QSize ArtworkSize(std::string_view stem);

}  // namespace desktop
