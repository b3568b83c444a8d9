// The help viewer on a test file.
#include "desktop/help_viewer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QTest>
#include <chrono>
#include <filesystem>
#include <future>
#include <thread>

#include "desktop/help_page.h"
#include "tests/kit/fresh_folder.h"
#include "tests/story/world.h"

namespace desktop {
namespace {

constexpr std::string_view Text =
    "== Buttons\n"
    "= Save {220}\nWrites <the film>. See [170 sorting].\n- one\n- two\n\n"
    "= Sort {170}\nPuts the titles in order.\n"
    "== Boxes\n"
    "= Title {1}\nThe name of the film.\n";

struct Viewer : testing::Test {
  Viewer() { Write(Text); }
  void Write(std::string_view text) { story::WriteBytes(Folder.Path() / "Reelora4.HLP", text); }
  QString Shown() { return Window.Page().toPlainText(); }
  // As the user does: hot keys come before the widget.
  void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
    QTest::keyClick(&widget, key, modifiers);
  }
  // A window says nothing before it is in front.
  bool Said(const QString& words) {
    return QTest::qWaitFor([&] { return Window.Speech().Words() == words; });
  }
  double TextSize() { return Window.Page().font().pointSizeF(); }

  kit::FreshFolder Folder;
  HelpViewer Window{Folder.Path().string()};
};

TEST_F(Viewer, TheContentsNameEveryChapterAndTopic) {
  Window.Open(0);
  EXPECT_TRUE(Window.isVisible());
  for (const char* words : {"Contents", "Buttons", "Save", "Sort", "Boxes", "Title"})
    EXPECT_TRUE(Shown().contains(words)) << words;
}

TEST_F(Viewer, ATopicIsShownWithItsText) {
  Window.Open(220);
  EXPECT_TRUE(Shown().contains("Writes <the film>. See sorting."));
  EXPECT_FALSE(Shown().contains("Puts the titles"));
}

TEST_F(Viewer, AnUnknownNumberShowsTheContents) {
  Window.Open(999);
  EXPECT_TRUE(Shown().startsWith("Contents"));
}

TEST_F(Viewer, LinksLeadOnAndBackLeadsBack) {
  Window.Open(220);
  emit Window.Page().anchorClicked(QUrl(AddressOf(170)));
  EXPECT_TRUE(Shown().contains("Puts the titles"));
  Window.ShowContents();
  EXPECT_TRUE(Shown().startsWith("Contents"));
  Window.GoBack();
  EXPECT_TRUE(Shown().contains("Puts the titles"));
  Window.GoBack();
  EXPECT_TRUE(Shown().contains("Writes"));
  Window.GoBack();
  EXPECT_TRUE(Shown().contains("Writes"));
}

TEST_F(Viewer, SearchFindsTheTopicsThatHoldAllWords) {
  Window.Open(0);
  Window.SearchLine().setText(" THE  film ");
  Press(Window.SearchLine(), Qt::Key_Return);
  EXPECT_TRUE(Shown().contains("Save"));
  EXPECT_TRUE(Shown().contains("Title"));
  EXPECT_FALSE(Shown().contains("Sort"));
  Window.Search("nowhere");
  EXPECT_TRUE(Shown().contains("There is none."));
  Window.Search("   ");
  EXPECT_TRUE(Shown().contains("There is none."));
}

TEST_F(Viewer, CtrlFAndAltSLeadToTheSearchLine) {
  Window.Open(220);
  Window.Search("film");
  for (auto [key, modifier] : {std::pair(Qt::Key_F, Qt::ControlModifier), std::pair(Qt::Key_S, Qt::AltModifier)}) {
    Window.SearchLine().setText("title");
    Window.Page().setFocus();
    Press(Window.Page(), key, modifier);
    EXPECT_TRUE(Window.SearchLine().hasFocus());
    EXPECT_EQ(Window.SearchLine().selectedText(), "title");
    EXPECT_TRUE(Shown().contains("film")) << "it only leads there";
  }
}

TEST_F(Viewer, AltLeftGoesBackFromTheTextAndFromTheSearchLine) {
  Window.Open(220);
  Window.ShowContents();
  Window.Search("titles");
  Press(Window.Page(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_TRUE(Shown().startsWith("Contents"));
  Window.SearchLine().setFocus();
  Press(Window.SearchLine(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_TRUE(Shown().contains("Writes"));
}

TEST_F(Viewer, CtrlPlusMinusAnd0ScaleTheTextWithinLimits) {
  Window.Open(220);
  double usual = TextSize();
  Press(Window.Page(), Qt::Key_Plus, Qt::ControlModifier);
  Press(Window.Page(), Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_EQ(TextSize(), usual + 2);
  Window.ShowContents();
  EXPECT_EQ(TextSize(), usual + 2);
  Press(Window.Page(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(TextSize(), usual);
  Press(Window.Page(), Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(TextSize(), usual - 1);
  Window.Scale(-1000);
  EXPECT_GE(TextSize(), 5);
  Window.Scale(1000);
  EXPECT_LE(TextSize(), 40);
  Press(Window.Page(), Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(TextSize(), usual);
}

TEST_F(Viewer, TheTextIsWalkedAndSelectedByKey) {
  Window.Open(220);
  Press(Window.Page(), Qt::Key_Home, Qt::ControlModifier);
  Press(Window.Page(), Qt::Key_Down);
  Press(Window.Page(), Qt::Key_Down);
  Press(Window.Page(), Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(Window.Page().textCursor().selectedText(), "Writes <the film>. See sorting.");
}

TEST_F(Viewer, ALinkIsReachedAndFollowedByKey) {
  Window.Open(220);
  Press(Window.Page(), Qt::Key_Tab);
  EXPECT_EQ(Window.Page().textCursor().selectedText(), "sorting");
  Press(Window.Page(), Qt::Key_Return);
  EXPECT_TRUE(Shown().contains("Puts the titles"));
}

TEST_F(Viewer, ATopicIsFoundByKeyAlone) {
  Window.Open(220);
  Press(Window.Page(), Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(&Window.SearchLine(), "titles order");
  Press(Window.SearchLine(), Qt::Key_Return);
  Press(*Window.focusWidget(), Qt::Key_Tab);
  Press(*Window.focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(Shown().contains("Puts the titles"));
}

TEST_F(Viewer, APageThatComesUpIsSaid) {
  Window.Open(170);
  ASSERT_TRUE(Said("Buttons. Sort"));
  Window.Open(220);
  EXPECT_EQ(Window.Speech().Words(), "Buttons. Save");
  Window.Search("nowhere");
  EXPECT_EQ(Window.Speech().Words(), "Topics with \u201cnowhere\u201d. There is none.");
}

TEST_F(Viewer, ALinkIsSaidWhenTheCaretComesToItsLine) {
  Window.Open(220);
  ASSERT_TRUE(Said("Buttons. Save"));
  Press(Window.Page(), Qt::Key_Down);
  EXPECT_EQ(Window.Speech().Times(), 1);
  Press(Window.Page(), Qt::Key_Down);
  EXPECT_EQ(Window.Speech().Words(), "Link sorting");
  unsigned times = Window.Speech().Times();
  Press(Window.Page(), Qt::Key_Down);
  EXPECT_EQ(Window.Speech().Times(), times);
  Press(Window.Page(), Qt::Key_Up);
  EXPECT_EQ(Window.Speech().Times(), times + 1);
  Press(Window.Page(), Qt::Key_End);
  EXPECT_EQ(Window.Speech().Times(), times + 1);
  for (const char* letter = "sorting."; *letter; ++letter) Press(Window.Page(), Qt::Key_Left);
  EXPECT_EQ(Window.Speech().Times(), times + 2) << "once, on its last letter";
}

TEST_F(Viewer, ALinkIsSaidWhenTabChoosesIt) {
  Window.Open(0);
  ASSERT_TRUE(Said("Contents. Buttons"));
  for (const char* words : {"Link Save", "Link Sort", "Link Title"}) {
    Press(Window.Page(), Qt::Key_Tab);
    EXPECT_EQ(Window.Speech().Words(), words);
  }
  Press(Window.Page(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Window.Speech().Words(), "Link Sort");
}

TEST_F(Viewer, TabGoesFromTheSearchLineToItsButtonAndOnToTheText) {
  Window.Open(220);
  Window.GoToSearchLine();
  Press(Window.SearchLine(), Qt::Key_Tab);
  EXPECT_EQ(qobject_cast<QPushButton*>(Window.focusWidget())->text(), "&Search");
  Press(*Window.focusWidget(), Qt::Key_Tab);
  EXPECT_TRUE(Window.Page().hasFocus());
}

// A click through the window system, which a modal window can keep away.
void ClickContents(HelpViewer& viewer) {
  auto* contents = viewer.findChild<QPushButton*>();
  ASSERT_EQ(contents->text(), "&Contents");
  QTest::mouseClick(viewer.windowHandle(), Qt::LeftButton, {}, contents->geometry().center());
}

TEST_F(Viewer, ItTakesInputOverAModalWindowAndAfterIt) {
  Window.Open(170);
  {
    QWidget modal;
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&modal));
    ClickContents(Window);
    EXPECT_FALSE(Shown().startsWith("Contents")) << "the modal window came later";
    Window.Open(220);
    ClickContents(Window);
    EXPECT_TRUE(Shown().startsWith("Contents"));
  }
  Window.Open(220);
  EXPECT_TRUE(Window.isVisible());
  ClickContents(Window);
  EXPECT_TRUE(Shown().startsWith("Contents"));
}

TEST_F(Viewer, AWindowOutsideTheScreenComesBackOntoIt) {
  Window.Open(220);
  Window.close();
  Window.setGeometry(20000, -9000, 30000, 400);
  Window.Open(220);
  EXPECT_TRUE(Window.screen()->availableGeometry().contains(Window.geometry()));
  EXPECT_EQ(Window.height(), 400);
}

TEST(PlaceOn, MovesBeforeItMakesSmaller) {
  const QRect screen(100, 50, 800, 600);
  EXPECT_EQ(PlaceOn(screen, {256, 60, 512, 512}), QRect(256, 60, 512, 512));
  EXPECT_EQ(PlaceOn(screen, {600, 256, 512, 512}), QRect(388, 138, 512, 512));
  EXPECT_EQ(PlaceOn(screen, {0, 0, 512, 512}), QRect(100, 50, 512, 512));
  EXPECT_EQ(PlaceOn(screen, {256, 256, 5000, 512}), QRect(100, 138, 800, 512));
  EXPECT_EQ(PlaceOn(QRect(0, 0, 320, 240), {256, 256, 512, 512}), QRect(0, 0, 320, 240));
}

TEST_F(Viewer, AMissingFileIsNamedAndTheNextOpeningFindsItAgain) {
  std::filesystem::remove(Folder.Path() / "Reelora4.HLP");
  Window.Open(170);
  EXPECT_EQ(Shown(), "The help file Reelora4.HLP is missing.");
  EXPECT_FALSE(Window.SearchLine().isEnabled());
  Write(Text);
  Window.Open(170);
  EXPECT_TRUE(Shown().contains("Puts the titles"));
  EXPECT_TRUE(Window.SearchLine().isEnabled());
}

// Ends the wait of whoever reads that pipe, which would last for ever.
class LateWriter {
 public:
  explicit LateWriter(std::filesystem::path pipe)
      : thread_([pipe = std::move(pipe), end = end_.get_future()] {
          using namespace std::chrono_literals;
          if (end.wait_for(5s) == std::future_status::timeout) ::close(::open(pipe.c_str(), O_WRONLY | O_NONBLOCK));
        }) {}
  LateWriter(const LateWriter&) = delete;
  LateWriter& operator=(const LateWriter&) = delete;
  ~LateWriter() {
    end_.set_value();
    thread_.join();
  }

 private:
  std::promise<void> end_;
  std::thread thread_;
};

constexpr const char* CannotBeRead = "The help file Reelora4.HLP cannot be read.";

TEST_F(Viewer, APipeInPlaceOfTheFileIsNotWaitedFor) {
  const std::filesystem::path pipe = Folder.Path() / "Reelora4.HLP";
  std::filesystem::remove(pipe);
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
  const LateWriter writer(pipe);
  Window.Open(170);
  EXPECT_EQ(Shown(), CannotBeRead);
}

TEST_F(Viewer, AFileOfATerabyteIsNotRead) {
  Window.Open(170);
  if (::truncate((Folder.Path() / "Reelora4.HLP").c_str(), std::int64_t{1} << 40) != 0)
    GTEST_SKIP() << "no such file on this disk";
  Window.Open(170);
  EXPECT_EQ(Shown(), CannotBeRead);
  EXPECT_FALSE(Window.SearchLine().isEnabled());
}

TEST_F(Viewer, WhatIsNoFileCannotBeRead) {
  std::filesystem::remove(Folder.Path() / "Reelora4.HLP");
  std::filesystem::create_symlink("/dev/zero", Folder.Path() / "Reelora4.HLP");
  Window.Open(170);
  EXPECT_EQ(Shown(), CannotBeRead);
  std::filesystem::remove(Folder.Path() / "Reelora4.HLP");
  std::filesystem::create_directory(Folder.Path() / "Reelora4.HLP");
  Window.Open(170);
  EXPECT_EQ(Shown(), CannotBeRead);
}

TEST_F(Viewer, AFileOfAnythingIsTaken) {
  Write(std::string_view("\x00\xff<b>= [[{\n", 11));
  Window.Open(170);
  EXPECT_TRUE(Shown().startsWith("Contents"));
}

TEST_F(Viewer, EscapeClosesTheWindow) {
  Window.Open(0);
  Press(Window, Qt::Key_Escape);
  EXPECT_FALSE(Window.isVisible());
}

}  // namespace
}  // namespace desktop
