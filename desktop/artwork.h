// The program's pictures, drawn at the requested size.
#pragma once

#include <QPixmap>
#include <QSize>
#include <string_view>

namespace desktop {

// Stem: the file name without extension. Size in toolkit pixels; ratio: the display's. Empty if there is no such
// picture.
QPixmap Artwork(std::string_view stem, QSize size, double ratio);
// The drawing's own size; only the aspect ratio matters. Empty if there is no such picture.
QSize ArtworkSize(std::string_view stem);

}  // namespace desktop
