// The icons that are installed as pixels show the drawing.
#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>
#include <string>

#include "desktop/artwork.h"
#include "tests/kit/source_tree.h"

namespace {

// The mean difference of a colour channel, of 255.
double Difference(const QImage& one, const QImage& other) {
  double sum = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y), b = other.pixel(x, y);
      sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) +
             std::abs(qAlpha(a) - qAlpha(b));
    }
  return sum / (4.0 * one.width() * one.height());
}

// Two renderers smooth the edges of small icons differently.
constexpr double Close = 12;

TEST(Icons, ShowTheDrawing) {
  for (int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
    SCOPED_TRACE(side);
    const auto file = kit::SourceFolder() / "packaging/icons" / (std::to_string(side) + ".png");
    const QImage icon(QString::fromStdString(file.string()));
    const QImage drawn = desktop::Artwork("reelora", {side, side}, 1).toImage();
    ASSERT_EQ(icon.size(), drawn.size());
    EXPECT_LT(Difference(icon, drawn), Close);
    EXPECT_GT(Difference(icon, desktop::Artwork("sort", {side, side}, 1).toImage()), Close);
  }
}

}  // namespace
