// A finger presses, enters and chooses as the mouse does.
#include <gtest/gtest.h>

#include <QListWidget>
#include <QMenu>
#include <memory>

#include "tests/desktop/whole_program.h"

namespace desktop {
namespace {

class Finger : public testing::Test, public WholeProgram {
 protected:
  void Tap(QWidget& widget, const QPoint& place) {
    QWidget* window = widget.window();
    QPoint there = widget.mapTo(window, place);
    QTest::touchEvent(window, device_.get()).press(0, there);
    QTest::touchEvent(window, device_.get()).release(0, there);
    QCoreApplication::processEvents();
  }
  void Tap(forms::Control& control) {
    QWidget& widget = Form().ViewOf(control)->Face();
    Tap(widget, widget.rect().center());
  }

  std::unique_ptr<QPointingDevice> device_{QTest::createTouchDevice()};
};

TEST_F(Finger, PressesAButton) {
  Tap(Screen().cmdNew);
  EXPECT_TRUE(Screen().txtTitle.HoldsFocus());
  EXPECT_EQ(Screen().txtTitle.Text(), "");
}

TEST_F(Finger, EntersAField) {
  Tap(Screen().cmdNew);
  Tap(Screen().txtDirector);
  EXPECT_TRUE(Screen().txtDirector.HoldsFocus());
  EXPECT_EQ(Form().focusWidget(), &Form().ViewOf(Screen().txtDirector)->Widget());
}

TEST_F(Finger, TakesAnItemOfAPickList) {
  Tap(Screen().cmdNew);
  Tap(Screen().txtFormat);
  ASSERT_TRUE(Screen().List3.Visible());
  auto& list = dynamic_cast<QListWidget&>(Form().ViewOf(Screen().List3)->Widget());
  QString item = list.item(1)->text();
  Tap(*list.viewport(), list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(Screen().txtFormat.Text(), item.toStdString());
}

TEST_F(Finger, TurnsThePage) {
  Tap(Screen().optnoteson);
  EXPECT_TRUE(Screen().txtProducer.Visible());
  Tap(Screen().optNotesoff);
  EXPECT_TRUE(Screen().txtTitle.Visible());
}

TEST_F(Finger, OpensAMenuAndChoosesALine) {
  bool chosen = false;
  Screen().mnuSave.Click = [&] { chosen = true; };
  QMenuBar& bar = Form().Menu().Bar();
  QAction* file = Form().Menu().ActionOf(Screen().mnuFile1);
  Tap(bar, bar.actionGeometry(file).center());
  ASSERT_TRUE(file->menu()->isVisible());
  Tap(*file->menu(), file->menu()->actionGeometry(Form().Menu().ActionOf(Screen().mnuSave)).center());
  EXPECT_TRUE(chosen);
  EXPECT_FALSE(file->menu()->isVisible());
}

TEST_F(Finger, EntersARowOfTheList) {
  OpenList();
  Tap(Screen().Text1[3]);
  EXPECT_TRUE(Screen().Text1[3].HoldsFocus());
  EXPECT_EQ(Form().focusWidget(), &Form().ViewOf(Screen().Text1[3])->Widget());
}

}  // namespace
}  // namespace desktop
