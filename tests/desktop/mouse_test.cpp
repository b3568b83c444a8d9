// The mouse on the drawn window.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QListWidget>
#include <QTest>

#include "tests/desktop/drawn_window.h"

namespace desktop {
namespace {

class MouseOn : public testing::Test, public DrawnWindow {};

TEST_F(MouseOn, AClickComesOnTheReleaseWithTheFocusFirst) {
  std::string seen;
  Window.Push.GotFocus = [&] { seen += "focus "; };
  Window.Push.Click = [&] { seen += "click "; };
  Window.Push.MouseUp = [&] { seen += "up"; };
  QWidget& save = WidgetOf(Window.Push);
  Mouse(save, QEvent::MouseButtonPress, save.rect().center());
  EXPECT_EQ(seen, "");
  Mouse(save, QEvent::MouseButtonRelease, save.rect().center());
  EXPECT_EQ(seen, "focus click up");
}

TEST_F(MouseOn, AReleaseElsewhereIsNoClick) {
  int clicks = 0;
  Window.Push.Click = [&] { ++clicks; };
  QWidget& save = WidgetOf(Window.Push);
  Mouse(save, QEvent::MouseButtonPress, save.rect().center());
  Mouse(save, QEvent::MouseButtonRelease, QPoint(-20, -20));
  EXPECT_EQ(clicks, 0);
}

TEST_F(MouseOn, AFieldThatRefusesIsNotEnteredAndNotSelected) {
  Window.Second.SetText("Solaris");
  Window.Second.GotFocus = [&] {
    Desk.MessageBox(forms::Icon::Warning, "Star", "Hit edit to change.");
    Window.Push.SetFocus();
  };
  View.Sync();
  Click(WidgetOf(Window.Second));
  EXPECT_EQ(Desk.BoxesShown(), 1U);
  EXPECT_EQ(Focus(), &WidgetOf(Window.Push));
  EXPECT_FALSE(FieldOf(Window.Second).hasSelectedText());
}

TEST_F(MouseOn, PutsTheCaretWhereItClicks) {
  Window.Second.SetText("abcdefgh");
  View.Paint();
  FieldView& field = FieldOf(Window.Second);
  ClickAt(field, {field.width() / 2, field.height() / 2});
  EXPECT_EQ(Focus(), &field);
  EXPECT_EQ(field.cursorPosition(), field.cursorPositionAt({field.width() / 2, field.height() / 2}));
  EXPECT_NE(field.cursorPosition(), 8);
}

TEST_F(MouseOn, ADoubleClickRunsOneClickAndOneDoubleClickOnAField) {
  std::string seen;
  Window.Second.Click = [&] { seen += "click "; };
  Window.Second.DblClick = [&] { seen += "double"; };
  FieldView& field = FieldOf(Window.Second);
  Click(field);
  Mouse(field, QEvent::MouseButtonDblClick, field.rect().center());
  Mouse(field, QEvent::MouseButtonRelease, field.rect().center());
  EXPECT_EQ(seen, "click double");
}

TEST_F(MouseOn, TwoQuickClicksOnAButtonAreTwo) {
  int clicks = 0;
  Window.Push.Click = [&] { ++clicks; };
  QWidget& save = WidgetOf(Window.Push);
  Click(save);
  Mouse(save, QEvent::MouseButtonDblClick, save.rect().center());
  Mouse(save, QEvent::MouseButtonRelease, save.rect().center());
  EXPECT_EQ(clicks, 2);
}

TEST_F(MouseOn, MovesAreSeenOverDisabledControlsAndTheBareWindow) {
  std::string seen;
  Window.Third.MouseMove = [&] { seen += "closed "; };
  Window.MouseMove = [&] { seen += "window"; };
  Mouse(WidgetOf(Window.Third), QEvent::MouseMove, {3, 3}, Qt::NoButton);
  Mouse(Drawn().Surface(), QEvent::MouseMove, {3, 3}, Qt::NoButton);
  EXPECT_EQ(seen, "closed window");
}

TEST_F(MouseOn, ADisabledControlTakesNoClick) {
  int clicks = 0;
  Window.Third.Click = [&] { ++clicks; };
  Click(WidgetOf(Window.Third));
  EXPECT_EQ(clicks, 0);
}

TEST_F(MouseOn, APressPicksTheItemBeneathIt) {
  std::string seen;
  Window.List.Click = [&] { seen += Window.List.Selected() + " "; };
  Window.List.MouseDown = [&] { seen += "down", Window.List.Hide(); };
  Window.List.Show();
  View.Sync();
  auto& list = dynamic_cast<QListWidget&>(WidgetOf(Window.List));
  Mouse(*list.viewport(), QEvent::MouseButtonPress, list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(seen, "Laser down");
  EXPECT_FALSE(list.isVisible());
}

TEST_F(MouseOn, ADoubleClickOnAnItemPicksItOnce) {
  std::string seen;
  Window.List.MouseDown = [&] { seen += "down "; };
  Window.List.DblClick = [&] { seen += "double"; };
  Window.List.Show();
  View.Sync();
  auto& list = dynamic_cast<QListWidget&>(WidgetOf(Window.List));
  QPoint item = list.visualItemRect(list.item(1)).center();
  ClickAt(*list.viewport(), item);
  Mouse(*list.viewport(), QEvent::MouseButtonDblClick, item);
  EXPECT_EQ(seen, "down double");
}

TEST_F(MouseOn, APressOutsideTheItemsOnlyTakesTheFocus) {
  std::string seen;
  Window.List.Click = [&] { seen += "click "; };
  Window.List.MouseDown = [&] { seen += "down "; };
  Window.List.Empty();
  Window.List.Show();
  View.Sync();
  auto& list = dynamic_cast<QListWidget&>(WidgetOf(Window.List));
  Click(*list.viewport());
  EXPECT_EQ(seen, "");
  EXPECT_TRUE(Window.List.HoldsFocus());
}

TEST_F(MouseOn, AnOptionShowsWhatTheFormSays) {
  Window.Two.Click = [&] { Window.One.Select(); };
  Click(WidgetOf(Window.Two));
  EXPECT_FALSE(dynamic_cast<QAbstractButton&>(WidgetOf(Window.Two)).isChecked());
  EXPECT_TRUE(dynamic_cast<QAbstractButton&>(WidgetOf(Window.One)).isChecked());
}

TEST_F(MouseOn, TheRightButtonEntersAFieldBeforeItsMenuOpens) {
  Mouse(WidgetOf(Window.Second), QEvent::MouseButtonPress, {3, 3}, Qt::RightButton);
  EXPECT_EQ(Focus(), &WidgetOf(Window.Second));
  EXPECT_TRUE(Window.Second.HoldsFocus());
}

TEST_F(MouseOn, TheRightButtonOnAButtonLeavesTheFocus) {
  forms::Control* holder = Window.Focus();
  Mouse(WidgetOf(Window.Push), QEvent::MouseButtonPress, {3, 3}, Qt::RightButton);
  EXPECT_EQ(Window.Focus(), holder);
}

TEST_F(MouseOn, ADoubleClickOnAFieldDisabledByTheFirstRunsNothing) {
  std::string seen;
  Window.Second.Click = [&] { Window.Second.Disable(); };
  Window.Second.DblClick = [&] { seen += "double"; };
  FieldView& field = FieldOf(Window.Second);
  Click(field);
  Mouse(field, QEvent::MouseButtonDblClick, field.rect().center());
  EXPECT_EQ(seen, "");
}

TEST_F(MouseOn, NoMenuOpensOnAFieldThatRefuses) {
  Window.Second.GotFocus = [&] { Window.Push.SetFocus(); };
  Mouse(WidgetOf(Window.Second), QEvent::MouseButtonPress, {3, 3}, Qt::RightButton);
  QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, WidgetOf(Window.Second).mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(&WidgetOf(Window.Second), &event);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MouseOn, AScreenReadersPressIsAClick) {
  int clicks = 0;
  Window.Push.Click = [&] { ++clicks; };
  dynamic_cast<QAbstractButton&>(WidgetOf(Window.Push)).click();
  EXPECT_EQ(clicks, 1);
}

TEST_F(MouseOn, TheCloseBoxAsksTheForm) {
  Window.Unload = [&] { Window.First.SetText("unloaded"); };
  Drawn().close();
  EXPECT_EQ(Window.First.Text(), "unloaded");
  EXPECT_FALSE(Window.Visible());
  EXPECT_FALSE(Drawn().isVisible());
}

}  // namespace
}  // namespace desktop
