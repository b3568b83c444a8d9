// Contrasts, and that the holder of the focus can be seen in every control and every colour.
#include "desktop/contrast.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>
#include <algorithm>

#include "tests/desktop/drawn_window.h"

namespace desktop {
namespace {

TEST(Contrasts, AreThoseOfTheKnownFormula) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
  EXPECT_EQ(Contrast(Qt::red, Qt::red), 1);
}

TEST(Contrasts, AColourThatStandsOutAlreadyStays) {
  EXPECT_EQ(StandingOut(Qt::yellow, Qt::blue, TextContrast), QColor(Qt::yellow));
  for (const QColor& ground : {QColor(Qt::white), QColor(Qt::black), QColor(Qt::blue), QColor(0x80, 0x80, 0x80)})
    EXPECT_GE(Contrast(StandingOut(Qt::yellow, ground, MarkContrast), ground), MarkContrast);
}

TEST(Contrasts, DisabledTextIsPalerAndCanBeRead) {
  QColor paler = DisabledColour(Qt::black, Qt::white);
  EXPECT_NE(paler, QColor(Qt::black));
  EXPECT_GE(Contrast(paler, Qt::white), TextContrast);
  EXPECT_GE(Contrast(DisabledColour(Qt::blue, QColor(0xF0, 0xF0, 0xF0)), QColor(0xF0, 0xF0, 0xF0)), TextContrast);
}

class FocusMark : public testing::TestWithParam<forms::Colour>, public DrawnWindow {
 protected:
  // The picture of the control's part of the window, with and without the focus.
  QImage Picture(forms::Control& control) { return Drawn().Surface().grab(WidgetOf(control).geometry()).toImage(); }
  // How many pixels the focus makes stand out from what was there.
  int MarkOn(forms::Control& control, forms::Control& other) {
    other.SetFocus();
    View.Sync();
    QImage without = Picture(control);
    control.SetFocus();
    View.Sync();
    QImage with = Picture(control);
    int standing_out = 0;
    for (int y = 0; y < with.height(); ++y)
      for (int x = 0; x < with.width(); ++x)
        if (Contrast(with.pixelColor(x, y), without.pixelColor(x, y)) >= MarkContrast) ++standing_out;
    return standing_out;
  }
};

TEST_P(FocusMark, StandsOutInEveryKindOfControl) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Drawn()));
  Window.List.Show();
  Window.Two.Select();
  for (forms::Control* control : Window.Controls()) control->SetBackColor(GetParam());
  View.Sync();
  for (forms::Control* control :
       std::initializer_list<forms::Control*>{&Window.First, &Window.Push, &Window.Two, &Window.Check, &Window.List}) {
    forms::Control& other = control == &Window.First ? static_cast<forms::Control&>(Window.Second) : Window.First;
    // A line along one side at least.
    EXPECT_GE(MarkOn(*control, other), WidgetOf(*control).height()) << control->Name;
  }
}

INSTANTIATE_TEST_SUITE_P(Grounds, FocusMark,
                         testing::Values(forms::White, forms::Black, forms::Blue, 0xC0C0C0, 0x808080, 0x0080FF));

}  // namespace
}  // namespace desktop
