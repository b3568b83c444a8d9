// The boxes of `reelora`, and how its notice reaches the program's notice line.
#include "desktop/launcher_boxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "desktop/launcher_notice.h"
#include "tests/desktop/drawn_window.h"

namespace desktop {
namespace {

// Does that in the box that comes up.
template <typename Use>
void InTheBox(Use use) {
  QTimer::singleShot(0, qApp, [use] {
    auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    use(*box);
  });
}

QString TextOf(const QMessageBox& box) { return box.text().remove(QChar(0x200B)); }

TEST(LauncherBoxes, TellAndPrintTheText) {
  LauncherBoxes boxes;
  EXPECT_FALSE(boxes.HasTold());
  QString text;
  InTheBox([&](QMessageBox& box) {
    text = TextOf(box);
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  testing::internal::CaptureStderr();
  boxes.Tell("The folder /a/<b> cannot be made.");
  EXPECT_TRUE(testing::internal::GetCapturedStderr().starts_with("reelora: The folder /a/<b> cannot be made.\n"));
  EXPECT_EQ(text, "The folder /a/<b> cannot be made.");
  EXPECT_TRUE(boxes.HasTold());
}

TEST(LauncherBoxes, FillAFolderOnlyIfTold) {
  LauncherBoxes boxes;
  for (int key : {Qt::Key_Return, Qt::Key_Escape}) {
    InTheBox([key](QMessageBox& box) { QTest::keyClick(&box, static_cast<Qt::Key>(key)); });
    EXPECT_FALSE(boxes.MayFill("/papers"));
  }
  QString text;
  InTheBox([&](QMessageBox& box) {
    text = TextOf(box);
    for (QAbstractButton* button : box.buttons())
      if (button->text() == "&Put it there") button->click();
  });
  EXPECT_TRUE(boxes.MayFill("/papers"));
  EXPECT_EQ(text, "The folder /papers has other files in it, and no collection.");
  EXPECT_FALSE(boxes.HasTold());
}

TEST(LauncherNotice, IsTakenOnceAndShown) {
  qputenv(LauncherNoticeVariable, "No second copy of the films was made.");
  QString text = TakeLauncherNotice();
  EXPECT_FALSE(qEnvironmentVariableIsSet(LauncherNoticeVariable));
  DrawnWindow window;
  ShowLauncherNotice(window.View, text);
  EXPECT_EQ(window.View.Notices().Text(), "No second copy of the films was made.");
  EXPECT_TRUE(window.View.Notices().isVisible());
}

TEST(LauncherNotice, OfNothingIsNotShown) {
  qunsetenv(LauncherNoticeVariable);
  DrawnWindow window;
  ShowLauncherNotice(window.View, TakeLauncherNotice());
  EXPECT_TRUE(window.View.Notices().Empty());
}

}  // namespace
}  // namespace desktop
