// The bar is drawn once for each percent, on a terminal only, and is removed at the end.
#include "companion/bar.h"

#include <gtest/gtest.h>

#include <sstream>

namespace companion {
namespace {

class BarTest : public testing::Test {
 protected:
  std::string Drawn(bool terminal, const std::vector<double>& parts) {
    std::ostringstream text, errors;
    std::istringstream none;
    Output output{text, errors, none};
    output.ShowsBars = terminal;
    {
      Bar bar(output, "Sorting");
      for (double part : parts) bar.Show(part);
    }
    EXPECT_EQ(text.str(), "");
    return errors.str();
  }
};

TEST_F(BarTest, GrowsAndIsRemoved) {
  EXPECT_EQ(Drawn(true, {0.0, 0.005, 0.5, 1.0, 2.0}),
            "\r\x1B[KSorting [                              ]   0 %"
            "\r\x1B[KSorting [###############               ]  50 %"
            "\r\x1B[KSorting [##############################] 100 %"
            "\r\x1B[K");
}

TEST_F(BarTest, IsNotDrawnElsewhere) {
  EXPECT_EQ(Drawn(false, {0.5, 1.0}), "");
  EXPECT_EQ(Drawn(true, {}), "");
}

}  // namespace
}  // namespace companion
