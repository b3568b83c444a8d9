// Maps the twips grid of a window to the pixels of its surface. The grid fills the surface; fonts follow the smaller of
// the two scales.
#pragma once

#include <QFont>
#include <QRect>
#include <QSize>
#include <QStringList>

#include "forms/control.h"

namespace desktop {

// In toolkit pixels, before the display's device pixel ratio.
struct Grid {
  double Across = 0, Down = 0;  // pixels per twip

  // Width and height of the grid in twips.
  static Grid Of(QSize surface, int width, int height);
  bool operator==(const Grid&) const = default;

  // Both edges are rounded, not the width, so that neighbours on the grid touch.
  QRect Area(const forms::Place& place) const;
  int Pixels(double points) const;
  QFont Font(const forms::Look& look) const;
};

// Of everything that is drawn: Liberation Sans, which has the widths of Arial.
QStringList FontFamilies();

// At 96 dots per inch.
inline constexpr double PixelsPerTwip = 96.0 / 1440;
inline constexpr double TwipsPerPoint = 20;

// Of menus, boxes and notices.
inline constexpr double TextPoints = 9;

}  // namespace desktop
