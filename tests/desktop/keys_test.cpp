// Keys on the drawn window.
#include <gtest/gtest.h>

#include <QMenu>

#include "tests/desktop/small_window.h"

namespace desktop {
namespace {

class Keys : public testing::Test, public DrawnWindow {};

TEST_F(Keys, TabWalksTheFormsOwnOrder) {
  Form.Two.Select();
  View.Sync();
  Key(Qt::Key_Tab, "\t");
  EXPECT_EQ(Focus(), &WidgetOf(Form.Star));
  Key(Qt::Key_Tab, "\t");
  EXPECT_EQ(Focus(), &WidgetOf(Form.Save));
  Key(Qt::Key_Tab, "\t");
  EXPECT_EQ(Focus(), &WidgetOf(Form.Two));
  Key(Qt::Key_Backtab);
  EXPECT_EQ(Focus(), &WidgetOf(Form.Save));
}

TEST_F(Keys, EnterAndSpacePressAButtonOnce) {
  int clicks = 0;
  Form.Save.Click = [&] { ++clicks; };
  Form.Save.SetFocus();
  View.Sync();
  Key(Qt::Key_Return, "\r");
  EXPECT_EQ(clicks, 1);
  Key(Qt::Key_Space, " ");
  EXPECT_EQ(clicks, 2);
}

TEST_F(Keys, EscPressesTheCancelButtonAndTheFocusStays) {
  int clicks = 0;
  Form.Save.Click = [&] { ++clicks; };
  Form.CancelButton = &Form.Save;
  Key(Qt::Key_Escape, "\x1b");
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Focus(), &WidgetOf(Form.Title));
}

TEST_F(Keys, F1OpensTheTopicOfTheFocus) {
  Key(Qt::Key_Tab, "\t");
  Key(Qt::Key_F1);
  EXPECT_EQ(Desk.HelpTopics, std::vector<int>{3});
}

TEST_F(Keys, AltAndALetterReachTheControlWhereverTheFocusIs) {
  int clicks = 0;
  Form.Save.Click = [&] { ++clicks; };
  Key(Qt::Key_S, "s", Qt::AltModifier);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Focus(), &WidgetOf(Form.Save));
  EXPECT_EQ(Form.Title.Text(), "");
}

TEST_F(Keys, AltAndALetterOpenTheMenuIfNoControlHasTheLetter) {
  Key(Qt::Key_F, "f", Qt::AltModifier);
  QMenu* menu = Drawn().Menu().ActionOf(Form.File)->menu();
  EXPECT_TRUE(menu->isVisible());
  menu->close();
}

TEST_F(Keys, AltAndTheLetterOfALineWithoutItemsRunIt) {
  int clicks = 0;
  Form.Sort.Click = [&] { ++clicks; };
  Key(Qt::Key_R, "r", Qt::AltModifier);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Keys, F1InAnOpenMenuClosesItAndOpensItsTopic) {
  Key(Qt::Key_F, "f", Qt::AltModifier);
  QMenu* menu = Drawn().Menu().ActionOf(Form.File)->menu();
  KeyIn(*menu, Qt::Key_F1);
  EXPECT_EQ(Desk.HelpTopics, std::vector<int>{400});
  EXPECT_FALSE(menu->isVisible());
}

TEST_F(Keys, F1OnALineOfTheBarWithoutItemsOpensItsTopic) {
  QMenuBar& bar = Drawn().Menu().Bar();
  bar.setActiveAction(Drawn().Menu().ActionOf(Form.Sort));
  KeyIn(bar, Qt::Key_F1);
  EXPECT_EQ(Desk.HelpTopics, std::vector<int>{440});
  EXPECT_EQ(bar.activeAction(), nullptr);
}

TEST_F(Keys, ALineOfTheBarWithoutItemsThatAnArrowReachesTakesTheKeys) {
  int clicks = 0;
  Form.Sort.Click = [&] { ++clicks; };
  Key(Qt::Key_F, "f", Qt::AltModifier);
  KeyIn(*Drawn().Menu().ActionOf(Form.File)->menu(), Qt::Key_Right);
  QApplication::processEvents();
  ASSERT_EQ(Focus(), &Drawn().Menu().Bar());
  Key(Qt::Key_Return, "\r");
  QApplication::processEvents();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Focus(), &WidgetOf(Form.Title));
}

TEST_F(Keys, TheArrowsMoveTheSelectionOfAListAndOtherKeysRunKeyPress) {
  std::string seen;
  Form.List.Click = [&] { seen += Form.List.Selected() + " "; };
  Form.List.KeyPress = [&] { seen += "key "; };
  Form.List.Show();
  Form.List.Select(0);
  Form.List.SetFocus();
  View.Sync();
  Key(Qt::Key_Down);
  Key(Qt::Key_End);
  Key(Qt::Key_Return, "\r");
  Key(Qt::Key_X, "x");
  EXPECT_EQ(seen, "DVD Laser VHS key key ");
}

TEST_F(Keys, NothingIsDeliveredWhileAnEventRuns) {
  int clicks = 0;
  Form.Save.Click = [&] {
    if (++clicks == 1) Key(Qt::Key_Return, "\r");
  };
  Form.Save.SetFocus();
  View.Sync();
  Key(Qt::Key_Return, "\r");
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace desktop
