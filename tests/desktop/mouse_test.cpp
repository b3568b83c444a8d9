// The mouse on the drawn window.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QListWidget>

#include "tests/desktop/small_window.h"

namespace desktop {
namespace {

class MouseOn : public testing::Test, public DrawnWindow {};

TEST_F(MouseOn, AClickComesOnTheReleaseWithTheFocusFirst) {
  std::string seen;
  Form.Save.GotFocus = [&] { seen += "focus "; };
  Form.Save.Click = [&] { seen += "click "; };
  Form.Save.MouseUp = [&] { seen += "up"; };
  QWidget& save = WidgetOf(Form.Save);
  Mouse(save, QEvent::MouseButtonPress, save.rect().center());
  EXPECT_EQ(seen, "");
  Mouse(save, QEvent::MouseButtonRelease, save.rect().center());
  EXPECT_EQ(seen, "focus click up");
}

TEST_F(MouseOn, AReleaseElsewhereIsNoClick) {
  int clicks = 0;
  Form.Save.Click = [&] { ++clicks; };
  QWidget& save = WidgetOf(Form.Save);
  Mouse(save, QEvent::MouseButtonPress, save.rect().center());
  Mouse(save, QEvent::MouseButtonRelease, QPoint(-20, -20));
  EXPECT_EQ(clicks, 0);
}

TEST_F(MouseOn, AFieldThatRefusesIsNotEnteredAndNotSelected) {
  Form.Star.SetText("Solaris");
  Form.Star.GotFocus = [&] {
    Desk.MessageBox(forms::Icon::Warning, "Star", "Hit edit to change.");
    Form.Save.SetFocus();
  };
  View.Sync();
  Click(WidgetOf(Form.Star));
  EXPECT_EQ(Desk.BoxesShown(), 1U);
  EXPECT_EQ(Focus(), &WidgetOf(Form.Save));
  EXPECT_FALSE(FieldOf(Form.Star).hasSelectedText());
}

TEST_F(MouseOn, PutsTheCaretWhereItClicks) {
  Form.Star.SetText("abcdefgh");
  View.Paint();
  FieldView& field = FieldOf(Form.Star);
  ClickAt(field, {field.width() / 2, field.height() / 2});
  EXPECT_EQ(Focus(), &field);
  EXPECT_EQ(field.cursorPosition(), field.cursorPositionAt({field.width() / 2, field.height() / 2}));
  EXPECT_NE(field.cursorPosition(), 8);
}

TEST_F(MouseOn, ADoubleClickRunsOneClickAndOneDoubleClickOnAField) {
  std::string seen;
  Form.Star.Click = [&] { seen += "click "; };
  Form.Star.DblClick = [&] { seen += "double"; };
  FieldView& field = FieldOf(Form.Star);
  Click(field);
  Mouse(field, QEvent::MouseButtonDblClick, field.rect().center());
  Mouse(field, QEvent::MouseButtonRelease, field.rect().center());
  EXPECT_EQ(seen, "click double");
}

TEST_F(MouseOn, TwoQuickClicksOnAButtonAreTwo) {
  int clicks = 0;
  Form.Save.Click = [&] { ++clicks; };
  QWidget& save = WidgetOf(Form.Save);
  Click(save);
  Mouse(save, QEvent::MouseButtonDblClick, save.rect().center());
  Mouse(save, QEvent::MouseButtonRelease, save.rect().center());
  EXPECT_EQ(clicks, 2);
}

TEST_F(MouseOn, MovesAreSeenOverDisabledControlsAndTheBareWindow) {
  std::string seen;
  Form.Closed.MouseMove = [&] { seen += "closed "; };
  Form.MouseMove = [&] { seen += "window"; };
  Mouse(WidgetOf(Form.Closed), QEvent::MouseMove, {3, 3}, Qt::NoButton);
  Mouse(Drawn().Surface(), QEvent::MouseMove, {3, 3}, Qt::NoButton);
  EXPECT_EQ(seen, "closed window");
}

TEST_F(MouseOn, ADisabledControlTakesNoClick) {
  int clicks = 0;
  Form.Closed.Click = [&] { ++clicks; };
  Click(WidgetOf(Form.Closed));
  EXPECT_EQ(clicks, 0);
}

TEST_F(MouseOn, APressPicksTheItemBeneathIt) {
  std::string seen;
  Form.List.Click = [&] { seen += Form.List.Selected() + " "; };
  Form.List.MouseDown = [&] { seen += "down", Form.List.Hide(); };
  Form.List.Show();
  View.Sync();
  auto& list = dynamic_cast<QListWidget&>(WidgetOf(Form.List));
  Mouse(*list.viewport(), QEvent::MouseButtonPress, list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(seen, "Laser down");
  EXPECT_FALSE(list.isVisible());
}

TEST_F(MouseOn, ADoubleClickOnAnItemPicksItOnce) {
  std::string seen;
  Form.List.MouseDown = [&] { seen += "down "; };
  Form.List.DblClick = [&] { seen += "double"; };
  Form.List.Show();
  View.Sync();
  auto& list = dynamic_cast<QListWidget&>(WidgetOf(Form.List));
  QPoint item = list.visualItemRect(list.item(1)).center();
  ClickAt(*list.viewport(), item);
  Mouse(*list.viewport(), QEvent::MouseButtonDblClick, item);
  EXPECT_EQ(seen, "down double");
}

TEST_F(MouseOn, APressOutsideTheItemsOnlyTakesTheFocus) {
  std::string seen;
  Form.List.Click = [&] { seen += "click "; };
  Form.List.MouseDown = [&] { seen += "down "; };
  Form.List.Empty();
  Form.List.Show();
  View.Sync();
  auto& list = dynamic_cast<QListWidget&>(WidgetOf(Form.List));
  Click(*list.viewport());
  EXPECT_EQ(seen, "");
  EXPECT_TRUE(Form.List.HoldsFocus());
}

TEST_F(MouseOn, AnOptionShowsWhatTheFormSays) {
  Form.Two.Click = [&] { Form.One.Select(); };
  Click(WidgetOf(Form.Two));
  EXPECT_FALSE(dynamic_cast<QAbstractButton&>(WidgetOf(Form.Two)).isChecked());
  EXPECT_TRUE(dynamic_cast<QAbstractButton&>(WidgetOf(Form.One)).isChecked());
}

TEST_F(MouseOn, TheRightButtonEntersAFieldBeforeItsMenuOpens) {
  Mouse(WidgetOf(Form.Star), QEvent::MouseButtonPress, {3, 3}, Qt::RightButton);
  EXPECT_EQ(Focus(), &WidgetOf(Form.Star));
  EXPECT_TRUE(Form.Star.HoldsFocus());
}

TEST_F(MouseOn, TheRightButtonOnAButtonLeavesTheFocus) {
  forms::Control* holder = Form.Focus();
  Mouse(WidgetOf(Form.Save), QEvent::MouseButtonPress, {3, 3}, Qt::RightButton);
  EXPECT_EQ(Form.Focus(), holder);
}

TEST_F(MouseOn, ADoubleClickOnAFieldDisabledByTheFirstRunsNothing) {
  std::string seen;
  Form.Star.Click = [&] { Form.Star.Disable(); };
  Form.Star.DblClick = [&] { seen += "double"; };
  FieldView& field = FieldOf(Form.Star);
  Click(field);
  Mouse(field, QEvent::MouseButtonDblClick, field.rect().center());
  EXPECT_EQ(seen, "");
}

TEST_F(MouseOn, NoMenuOpensOnAFieldThatRefuses) {
  Form.Star.GotFocus = [&] { Form.Save.SetFocus(); };
  Mouse(WidgetOf(Form.Star), QEvent::MouseButtonPress, {3, 3}, Qt::RightButton);
  QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, WidgetOf(Form.Star).mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(&WidgetOf(Form.Star), &event);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MouseOn, AScreenReadersPressIsAClick) {
  int clicks = 0;
  Form.Save.Click = [&] { ++clicks; };
  dynamic_cast<QAbstractButton&>(WidgetOf(Form.Save)).click();
  EXPECT_EQ(clicks, 1);
}

TEST_F(MouseOn, TheCloseBoxAsksTheForm) {
  Form.Unload = [&] { Form.Title.SetText("unloaded"); };
  Drawn().close();
  EXPECT_EQ(Form.Title.Text(), "unloaded");
  EXPECT_FALSE(Form.Visible());
  EXPECT_FALSE(Drawn().isVisible());
}

}  // namespace
}  // namespace desktop
