// How far colours stand out from each other.
#pragma once

#include <QColor>

namespace desktop {

// What a text needs to be read, and a mark to be seen.
inline constexpr double TextContrast = 4.5;
inline constexpr double MarkContrast = 3;

// From 1 for the same brightness to 21 for black and white.
double Contrast(const QColor& one, const QColor& other);
// The wanted colour, or the nearest of its shades that stands out from the ground so far; else black or white.
QColor StandingOut(const QColor& wanted, const QColor& ground, double contrast);
// Whichever stands out more.
QColor BlackOrWhite(const QColor& ground);
// The one colour with a part, from 0 to 1, of the other in it.
QColor Mixed(const QColor& one, const QColor& other, double part);

}  // namespace desktop
