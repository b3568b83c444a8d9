// The twips grid of a window on the pixels of its surface: it fills the surface, and texts grow with the narrower of
// the two directions.
#pragma once

#include <QFont>
#include <QRect>
#include <QSize>

#include "forms/control.h"

namespace desktop {

// Pixels here are those of the toolkit, before the display's own ratio.
struct Grid {
  double Across = 0, Down = 0;  // pixels a twip

  // Of a surface on which a grid of width by height twips lies.
  static Grid Of(QSize surface, int width, int height);
  bool operator==(const Grid&) const = default;

  // Neighbours on the grid touch on the surface: both edges are rounded, not the width.
  QRect Area(const forms::Place& place) const;
  int Pixels(double points) const;
  QFont Font(const forms::Look& look) const;
};

// One twip at 96 dots an inch, and twips of a point.
inline constexpr double PixelsPerTwip = 96.0 / 1440;
inline constexpr double TwipsPerPoint = 20;

}  // namespace desktop
