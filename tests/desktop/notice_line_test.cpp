// The notice line: what it shows, where it lies, and that it never takes the focus.
#include "desktop/notice_line.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDesktopServices>
#include <QFileInfo>
#include <QTextBrowser>

#include "desktop/notices.h"
#include "desktop/qt_desk.h"
#include "runtime/printer.h"
#include "tests/desktop/drawn_window.h"
#include "tests/kit/fresh_folder.h"

namespace desktop {
namespace {

class Notices : public testing::Test, public DrawnWindow {
 protected:
  Notices() { QApplication::processEvents(); }
  NoticeLine& Line() { return View.Notices(); }
};

TEST_F(Notices, ANoticeLiesBelowTheFormAndTheWindowGrows) {
  QSize window = Drawn().size();
  QSize surface = Drawn().Surface().size();
  Line().Show("Saved", {}, "a");
  EXPECT_TRUE(Line().isVisible());
  EXPECT_GT(Line().height(), 0);
  EXPECT_EQ(Drawn().height(), window.height() + Line().height());
  EXPECT_EQ(Drawn().Surface().size(), surface);
  EXPECT_EQ(Line().y(), Drawn().Surface().geometry().bottom() + 1);
  Line().Clear("a");
  EXPECT_FALSE(Line().isVisible());
  EXPECT_EQ(Drawn().size(), window);
  EXPECT_EQ(Drawn().Surface().size(), surface);
}

TEST_F(Notices, AWindowAsHighAsTheDisplayMakesRoomInside) {
  QRect room = Drawn().screen()->availableGeometry();
  Drawn().setGeometry(room);
  QApplication::processEvents();
  int surface = Drawn().Surface().height();
  Line().Show("Saved", {}, "a");
  EXPECT_EQ(Drawn().height(), room.height());
  EXPECT_EQ(Drawn().Surface().height(), surface - Line().height());
  Line().Clear("a");
  EXPECT_EQ(Drawn().height(), room.height());
  EXPECT_EQ(Drawn().Surface().height(), surface);
}

TEST_F(Notices, AWindowAtTheLowerEdgeMovesUp) {
  QRect room = Drawn().screen()->availableGeometry();
  Drawn().move(0, room.bottom() + 1 - Drawn().height());
  Line().Show("Saved", {}, "a");
  EXPECT_EQ(Drawn().frameGeometry().bottom(), room.bottom());
}

TEST_F(Notices, ANewNoticeReplacesTheOneWithItsKeyAndCoversOthers) {
  Line().Show("one", {}, "a");
  Line().Show("two", {}, "b");
  Line().Show("three", {}, "a");
  EXPECT_EQ(Line().Text(), "three");
  Line().CloseButton().click();
  EXPECT_EQ(Line().Text(), "two");
  Line().CloseButton().click();
  EXPECT_TRUE(Line().Empty());
  EXPECT_FALSE(Line().isVisible());
}

TEST_F(Notices, AnActionRunsAndMayClearItsNotice) {
  int runs = 0;
  Line().Show("Gone", {{"Put back", [&] { ++runs, Line().Clear("a"); }}}, "a");
  EXPECT_EQ(Line().ActionButton(0).text(), "Put back");
  EXPECT_TRUE(Line().ActionButton(0).isVisible());
  EXPECT_FALSE(Line().ActionButton(1).isVisible());
  Line().ActionButton(0).click();
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(Line().Empty());
}

TEST_F(Notices, NothingOfItTakesTheFocus) {
  QWidget* holder = Focus();
  std::string lost;
  Window.First.LostFocus = [&] { lost = "lost"; };
  Line().Show("Saved", {{"Open", [] {}}, {"Show folder", [] {}}}, "a");
  for (QWidget* part : Line().findChildren<QWidget*>()) {
    EXPECT_EQ(part->focusPolicy(), Qt::NoFocus) << part->metaObject()->className();
    Click(*part);
  }
  EXPECT_EQ(Focus(), holder);
  EXPECT_EQ(lost, "");
}

TEST_F(Notices, AScreenReaderMeetsAnAlertThatSaysTheText) {
  Line().Show("Saved", {}, "a");
  QAccessibleInterface* alert = QAccessible::queryAccessibleInterface(&Line());
  ASSERT_NE(alert, nullptr);
  EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
  EXPECT_EQ(alert->text(QAccessible::Name), "Saved");
  Line().Progress("Sorting", 0.1);
  EXPECT_EQ(alert->text(QAccessible::Name), "Sorting");
  EXPECT_EQ(Line().Bar().accessibleName(), "Sorting");
  EXPECT_EQ(Line().CloseButton().accessibleName(), "Put away");
}

TEST_F(Notices, StayWithTheirWindowUntilItIsHidden) {
  kit::SmallWindow other(Windows);
  Line().Show("Saved", {}, "a");
  other.Show();
  View.Sync();
  EXPECT_EQ(Line().parentWidget(), &Drawn());
  Window.Hide();
  View.Sync();
  EXPECT_EQ(Line().parentWidget(), View.ViewOf(other));
  EXPECT_TRUE(Line().isVisible());
}

TEST_F(Notices, ANoticeOfAWindowThatTheEventHidesLiesBelowTheNext) {
  kit::SmallWindow other(Windows);
  other.Show();
  View.Sync();
  View.Deliver([&] {
    Line().Show("Copied", {}, "a");
    other.Hide();
    Window.Show();
  });
  EXPECT_EQ(Line().parentWidget(), &Drawn());
}

TEST_F(Notices, LongWorkShowsHowFarItIsUntilTheEventEnds) {
  Line().Show("Saved", {}, "a");
  std::string seen;
  View.Deliver([&] {
    auto start = std::chrono::steady_clock::now();
    View.Progress("Sorting Titles", 0);
    EXPECT_FALSE(Line().Bar().isVisible());
    while (!Line().Bar().isVisible()) View.Progress("Sorting Titles", 0.5);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500));
    seen = Line().Text().toStdString();
    EXPECT_EQ(Line().Bar().value() * 2, Line().Bar().maximum());
  });
  EXPECT_EQ(seen, "Sorting Titles");
  EXPECT_FALSE(Line().Bar().isVisible());
  EXPECT_EQ(Line().Text(), "Saved");
}

TEST_F(Notices, TheTimeInABoxIsNoWork) {
  View.Deliver([&] {
    View.Progress("Sorting", 0);
    auto start = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(600)) {
    }
    View.EndProgress();  // as a box does
    View.Progress("Sorting", 0.5);
    EXPECT_TRUE(Line().Empty());
  });
}

TEST_F(Notices, ATypedCharacterThatIsNotTakenIsNamedUntilOneIsTaken) {
  Type(QString::fromUtf8("aж"));
  EXPECT_EQ(Line().Text(), QString::fromUtf8("ж cannot be stored"));
  EXPECT_EQ(Window.First.Text(), "a");
  Type("b");
  EXPECT_TRUE(Line().Empty());
  EXPECT_EQ(Window.First.Text(), "ab");
}

TEST_F(Notices, TheNameOfARefusedCharacterGoesWithTheFocus) {
  Type(QString::fromUtf8("ж"));
  Key(Qt::Key_Tab, "\t");
  EXPECT_TRUE(Line().Empty());
  EXPECT_EQ(Drawn().Surface().geometry().bottom() + 1, Drawn().height());
}

TEST(NoticeTexts, NameEachCharacterOnce) {
  EXPECT_EQ(NotStoredText(QString::fromUtf8("ł")), QString::fromUtf8("ł cannot be stored"));
  EXPECT_EQ(NotStoredText(QString::fromUtf8("łżł")), QString::fromUtf8("ł and ż cannot be stored"));
  EXPECT_EQ(NotStoredText(QString::fromUtf8("ł😀ж")), QString::fromUtf8("ł, 😀 and ж cannot be stored"));
  EXPECT_EQ(NotStoredText(QString::fromUtf8("абвгде")),
            QString::fromUtf8("а, б, в, г and 2 other characters cannot be stored"));
  EXPECT_EQ(NotStoredText("\r\n"), "A line break cannot be stored");
  EXPECT_EQ(NotStoredText(QString::fromUtf8("\u0301")), "The character U+0301 cannot be stored");
}

TEST(NoticeTexts, SayWhereACopyWent) {
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  EXPECT_EQ(CopiedText("Recpra.dat", "BACKUP", 'a', 2'076'800),
            "Copied Recpra.dat to the disk BACKUP in drive a: 2,076,800 bytes");
  EXPECT_EQ(CopiedText("Recpra.dat", "", 'd', 649), "Copied Recpra.dat to drive d: 649 bytes");
}

// A desk of the toolkit whose documents lie in a home of its own.
class DeskNotices : public testing::Test {
 protected:
  DeskNotices() : old_home_(qgetenv("HOME")) {
    qputenv("HOME", QByteArray::fromStdString(Home.Path().string()));
    Window.Show();
    View.Sync();
    Desk.DrawOn(View);
  }
  ~DeskNotices() override { qputenv("HOME", old_home_); }

  kit::FreshFolder Home;
  QtDesk Desk{Home.Path().string()};
  forms::WindowStack Windows{Desk};
  kit::SmallWindow Window{Windows};
  StackView View{Windows, [](const std::function<void()>& event) { event(); }};

 private:
  QByteArray old_home_;
};

// Takes the place of the program that opens a file.
class Opener final : public QTextBrowser {
 public:
  Opener() { QDesktopServices::setUrlHandler("file", this, "setSource"); }
  ~Opener() override { QDesktopServices::unsetUrlHandler("file"); }

 protected:
  QVariant loadResource(int, const QUrl&) override { return QStringLiteral("opened"); }
};

TEST_F(DeskNotices, AReportWithoutAPrinterSaysWhereItIsAndOpensIt) {
  runtime::Printer printer;
  printer.SetFont("Courier New", 12);
  printer.Print({"Alien"});
  View.Deliver([&] { Desk.Print(printer.EndDocument("Test List")); });
  NoticeLine& line = View.Notices();
  QString path = line.Text().mid(9);
  EXPECT_TRUE(line.Text().startsWith("Saved as ")) << line.Text().toStdString();
  EXPECT_TRUE(QFile::exists(path)) << path.toStdString();
  EXPECT_EQ(line.ActionButton(0).text(), "Open");
  EXPECT_EQ(line.ActionButton(1).text(), "Show folder");
  Opener opener;
  line.ActionButton(0).click();
  EXPECT_EQ(opener.source(), QUrl::fromLocalFile(path));
  line.ActionButton(1).click();
  EXPECT_EQ(opener.source(), QUrl::fromLocalFile(QFileInfo(path).path()));
}

TEST_F(DeskNotices, ACopyNamesFileDriveAndBytes) {
  View.Deliver([&] { Desk.Copied("Recpra.dat", 'x', 649); });
  EXPECT_EQ(View.Notices().Text(), "Copied Recpra.dat to drive x: 649 bytes");
}

TEST(NoticeTexts, NameThePrintersQueue) { EXPECT_EQ(SentText("Office"), "Sent to the printer Office"); }

}  // namespace
}  // namespace desktop
