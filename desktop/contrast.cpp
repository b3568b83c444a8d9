// The luminance of sRGB colours.
#include "desktop/contrast.h"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

double Linear(double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor StandingOut(const QColor& wanted, const QColor& ground, double contrast) {
  for (int percent : {100, 125, 150, 200}) {
    for (const QColor& shade : {wanted.darker(percent), wanted.lighter(percent)})
      if (Contrast(shade, ground) >= contrast) return shade;
  }
  return BlackOrWhite(ground);
}

QColor BlackOrWhite(const QColor& ground) {
  return Contrast(Qt::black, ground) > Contrast(Qt::white, ground) ? Qt::black : Qt::white;
}

QColor Mixed(const QColor& one, const QColor& other, double part) {
  auto mixed = [part](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * part)); };
  return {mixed(one.red(), other.red()), mixed(one.green(), other.green()), mixed(one.blue(), other.blue())};
}

}  // namespace desktop
