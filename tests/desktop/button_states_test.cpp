// Pressed, hovered, focused and disabled buttons can be told apart, in the delivered colours and in dark ones of the
// user.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QImage>
#include <QTest>
#include <vector>

#include "desktop/contrast.h"
#include "desktop/face.h"
#include "tests/desktop/drawn_window.h"

namespace desktop {
namespace {

struct Colours {
  const char* Name;
  forms::Colour Window, Button, Caption, Tag;
};
// clang-format off
constexpr Colours Choices[] = {
  { "Delivered", forms::Blue,  0xC0C0C0, forms::Black, forms::Yellow },
  { "Dark",      0x202020,     0x302820, 0xE0E0E0, 0xE0E0E0 },
  { "Black",     forms::Black, forms::Black, forms::White, forms::White },
};
// clang-format on

class ButtonStates : public testing::TestWithParam<Colours>, public DrawnWindow {
 protected:
  ButtonStates() {
    Window.SetBackColor(GetParam().Window);
    for (forms::Control* control : Window.Controls()) {
      bool button = control->Kind == forms::Kind::Button;
      control->SetBackColor(button ? GetParam().Button : GetParam().Window);
      control->SetForeColor(button ? GetParam().Caption : GetParam().Tag);
    }
    Window.Push.SetFocus();
    Window.First.SetFocus();
    View.Sync();
  }

  QImage Picture(forms::Control& control) { return Drawn().Surface().grab(WidgetOf(control).geometry()).toImage(); }
  // How many pixels differ so that it can be seen.
  static int Different(const QImage& one, const QImage& other, double contrast) {
    int different = 0;
    for (int y = 0; y < one.height(); ++y)
      for (int x = 0; x < one.width(); ++x)
        if (Contrast(one.pixelColor(x, y), other.pixelColor(x, y)) >= contrast) ++different;
    return different;
  }

  // At rest, hovered, pressed, disabled, focused.
  std::vector<QImage> StatesOf(forms::Control& control) {
    auto& button = dynamic_cast<QAbstractButton&>(WidgetOf(control));
    std::vector<QImage> states{Picture(control)};
    button.setAttribute(Qt::WA_UnderMouse);
    states.push_back(Picture(control));
    button.setDown(true);
    states.push_back(Picture(control));
    button.setDown(false);
    button.setAttribute(Qt::WA_UnderMouse, false);
    button.setEnabled(false);
    states.push_back(Picture(control));
    button.setEnabled(true);
    control.SetFocus();
    View.Sync();
    states.push_back(Picture(control));
    return states;
  }
};

TEST_P(ButtonStates, CanBeToldApart) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Drawn()));
  for (forms::Control* control : std::initializer_list<forms::Control*>{&Window.Push, &Window.One, &Window.Check}) {
    std::vector<QImage> states = StatesOf(*control);
    for (std::size_t one = 0; one < states.size(); ++one)
      for (std::size_t other = 0; other < one; ++other)
        EXPECT_GE(Different(states[one], states[other], 1.15), 12) << control->Name << " " << one << " and " << other;
    EXPECT_GE(Different(states.back(), states.front(), MarkContrast), WidgetOf(*control).height()) << control->Name;
  }
}

TEST_P(ButtonStates, TheCaptionCanBeReadInAllOfThem) {
  const forms::Look& look = Window.Push.Look();
  for (bool down : {false, true})
    for (bool hovered : {false, true})
      for (bool enabled : {false, true}) {
        ButtonFace face{Lit(ToColour(look.Back)), Lit(ToColour(look.Back)), Qt::blue, enabled, hovered, down};
        QColor fill = FillOf(face);
        QColor fore = CaptionColour(ToColour(look.Fore), face);
        EXPECT_GE(Contrast(fore, fill), TextContrast) << down << hovered << enabled;
      }
}

INSTANTIATE_TEST_SUITE_P(Choices, ButtonStates, testing::ValuesIn(Choices),
                         [](const auto& choice) { return choice.param.Name; });

}  // namespace
}  // namespace desktop
