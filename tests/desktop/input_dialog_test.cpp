// The input box.
#include "desktop/input_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTimer>

namespace desktop {
namespace {

TEST(InputDialog, GivesTheAnswerAsItIsTyped) {
  QString refused;
  InputDialog dialog("Search", "Title to search:", nullptr, [&](const QString& characters) { refused = characters; });
  QTimer::singleShot(0, [&] {
    QApplication::clipboard()->setText(QString::fromUtf8(" Amélie ж "));
    dialog.findChild<QLineEdit*>()->paste();
    QApplication::processEvents();
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  });
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_EQ(dialog.Answer(), QString::fromUtf8(" Amélie  "));
  EXPECT_EQ(refused, QString::fromUtf8("ж"));
}

TEST(InputDialog, CanBeCancelled) {
  InputDialog dialog("Search", "Title to search:", nullptr, [](const QString&) {});
  QTimer::singleShot(0, [&] { dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click(); });
  EXPECT_EQ(dialog.exec(), QDialog::Rejected);
}

}  // namespace
}  // namespace desktop
