// Keys on the drawn window.
#include <gtest/gtest.h>

#include <QMenu>

#include "tests/desktop/drawn_window.h"

namespace desktop {
namespace {

class Keys : public testing::Test, public DrawnWindow {};

TEST_F(Keys, TabWalksTheFormsOwnOrder) {
  Window.Two.Select();
  View.Sync();
  Key(Qt::Key_Tab, "\t");
  EXPECT_EQ(Focus(), &WidgetOf(Window.Second));
  Key(Qt::Key_Tab, "\t");
  EXPECT_EQ(Focus(), &WidgetOf(Window.Push));
  Key(Qt::Key_Tab, "\t");
  EXPECT_EQ(Focus(), &WidgetOf(Window.Two));
  Key(Qt::Key_Backtab);
  EXPECT_EQ(Focus(), &WidgetOf(Window.Push));
}

TEST_F(Keys, EnterAndSpacePressAButtonOnce) {
  int clicks = 0;
  Window.Push.Click = [&] { ++clicks; };
  Window.Push.SetFocus();
  View.Sync();
  Key(Qt::Key_Return, "\r");
  EXPECT_EQ(clicks, 1);
  Key(Qt::Key_Space, " ");
  EXPECT_EQ(clicks, 2);
}

TEST_F(Keys, EscPressesTheCancelButtonAndTheFocusStays) {
  int clicks = 0;
  Window.Push.Click = [&] { ++clicks; };
  Window.CancelButton = &Window.Push;
  Key(Qt::Key_Escape, "\x1b");
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Focus(), &WidgetOf(Window.First));
}

TEST_F(Keys, F1OpensTheTopicOfTheFocus) {
  Key(Qt::Key_Tab, "\t");
  Key(Qt::Key_F1);
  EXPECT_EQ(Desk.HelpTopics, std::vector<int>{20});
}

TEST_F(Keys, AltAndALetterReachTheControlWhereverTheFocusIs) {
  int clicks = 0;
  Window.Push.Click = [&] { ++clicks; };
  Key(Qt::Key_P, "p", Qt::AltModifier);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Focus(), &WidgetOf(Window.Push));
  EXPECT_EQ(Window.First.Text(), "");
}

TEST_F(Keys, AltAndALetterOpenTheMenuIfNoControlHasTheLetter) {
  Key(Qt::Key_M, "m", Qt::AltModifier);
  QMenu* menu = Drawn().Menu().ActionOf(Window.Menu)->menu();
  EXPECT_TRUE(menu->isVisible());
  EXPECT_EQ(menu->activeAction(), Drawn().Menu().ActionOf(Window.Item));
  menu->close();
}

TEST_F(Keys, F10OpensTheFirstMenuWithItsFirstLineChosen) {
  Key(Qt::Key_F10);
  QMenu* menu = Drawn().Menu().ActionOf(Window.Menu)->menu();
  EXPECT_TRUE(menu->isVisible());
  EXPECT_EQ(menu->activeAction(), Drawn().Menu().ActionOf(Window.Item));
  menu->close();
}

TEST_F(Keys, AltAndTheLetterOfALineWithoutItemsRunIt) {
  int clicks = 0;
  Window.Pull.Click = [&] { ++clicks; };
  Key(Qt::Key_L, "l", Qt::AltModifier);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Keys, F1InAnOpenMenuClosesItAndOpensItsTopic) {
  Key(Qt::Key_M, "m", Qt::AltModifier);
  QMenu* menu = Drawn().Menu().ActionOf(Window.Menu)->menu();
  KeyIn(*menu, Qt::Key_F1);
  EXPECT_EQ(Desk.HelpTopics, std::vector<int>{400});
  EXPECT_FALSE(menu->isVisible());
}

TEST_F(Keys, F1OnALineOfTheBarWithoutItemsOpensItsTopic) {
  QMenuBar& bar = Drawn().Menu().Bar();
  bar.setActiveAction(Drawn().Menu().ActionOf(Window.Pull));
  KeyIn(bar, Qt::Key_F1);
  EXPECT_EQ(Desk.HelpTopics, std::vector<int>{440});
  EXPECT_EQ(bar.activeAction(), nullptr);
}

TEST_F(Keys, ALineOfTheBarWithoutItemsThatAnArrowReachesTakesTheKeys) {
  int clicks = 0;
  Window.Pull.Click = [&] { ++clicks; };
  Key(Qt::Key_M, "m", Qt::AltModifier);
  KeyIn(*Drawn().Menu().ActionOf(Window.Menu)->menu(), Qt::Key_Right);
  QApplication::processEvents();
  ASSERT_EQ(Focus(), &Drawn().Menu().Bar());
  Key(Qt::Key_Return, "\r");
  QApplication::processEvents();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Focus(), &WidgetOf(Window.First));
}

TEST_F(Keys, TheArrowsMoveTheSelectionOfAListAndOtherKeysRunKeyPress) {
  std::string seen;
  Window.List.Click = [&] { seen += Window.List.Selected() + " "; };
  Window.List.KeyPress = [&] { seen += "key "; };
  Window.List.Show();
  Window.List.Select(0);
  Window.List.SetFocus();
  View.Sync();
  Key(Qt::Key_Down);
  Key(Qt::Key_End);
  Key(Qt::Key_Return, "\r");
  Key(Qt::Key_X, "x");
  EXPECT_EQ(seen, "DVD Laser VHS key key ");
}

TEST_F(Keys, NothingIsDeliveredWhileAnEventRuns) {
  int clicks = 0;
  Window.Push.Click = [&] {
    if (++clicks == 1) Key(Qt::Key_Return, "\r");
  };
  Window.Push.SetFocus();
  View.Sync();
  Key(Qt::Key_Return, "\r");
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace desktop
