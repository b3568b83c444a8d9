// The help viewer on a test file.
#include "desktop/help_viewer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>

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
  void Press(QWidget& widget, int key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
  }

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
