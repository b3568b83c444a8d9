// Widgets show what the form says, and are created only when needed.
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>

#include "tests/desktop/drawn_window.h"

namespace desktop {
namespace {

class Mirror : public testing::Test, public DrawnWindow {};

TEST_F(Mirror, AControlGetsItsWidgetWhenItIsFirstShown) {
  EXPECT_EQ(Drawn().ViewOf(Window.List), nullptr);
  Window.List.Show();
  View.Sync();
  EXPECT_TRUE(WidgetOf(Window.List).isVisible());
}

TEST_F(Mirror, AListShowsWholeRowsInItsPlace) {
  Window.List.Show();
  View.Sync();
  for (int width : {400, 415, 430, 445}) {
    Drawn().resize(width, width * 2 / 3);
    QApplication::processEvents();
    auto& list = dynamic_cast<QListWidget&>(WidgetOf(Window.List));
    int rows = list.viewport()->height();
    EXPECT_EQ(rows % list.sizeHintForRow(0), 0) << width;
    EXPECT_GT(rows, 0);
  }
}

TEST_F(Mirror, ALaterControlLiesOverAnEarlierOneThatWasShownLater) {
  Window.First.Hide();
  Window.List.Show();
  View.Sync();
  Window.First.Show();
  View.Sync();
  const QObjectList& order = Drawn().Surface().children();
  EXPECT_LT(order.indexOf(&WidgetOf(Window.First)), order.indexOf(&WidgetOf(Window.List)));
}

TEST_F(Mirror, ATextCostsTheWidgetNothingUntilTheEventIsOver) {
  QString meanwhile = "none";
  Window.Push.Click = [&] {
    Window.First.SetText("new");
    meanwhile = FieldOf(Window.First).text();
  };
  Click(WidgetOf(Window.Push));
  EXPECT_EQ(meanwhile, "");
  EXPECT_EQ(FieldOf(Window.First).text(), "new");
}

TEST_F(Mirror, TheFocusLeavesAWidgetBeforeItGoes) {
  Window.First.Hide();
  View.Sync();
  EXPECT_EQ(Focus(), &WidgetOf(Window.Second));
  EXPECT_FALSE(WidgetOf(Window.First).isVisible());
}

TEST_F(Mirror, ColoursAlignmentAndStatesFollow) {
  Window.First.SetForeColor(0x0000FF);
  Window.First.SetBackColor(0x00FF00);
  Window.First.SetAlignment(forms::Align::Left);
  Window.Second.Disable();
  View.Sync();
  EXPECT_EQ(FieldOf(Window.First).palette().color(QPalette::Text), QColor(255, 0, 0));
  EXPECT_EQ(FieldOf(Window.First).palette().color(QPalette::Base), QColor(0, 255, 0));
  EXPECT_TRUE(FieldOf(Window.First).alignment() & Qt::AlignLeft);
  EXPECT_FALSE(WidgetOf(Window.Second).isEnabled());
}

TEST_F(Mirror, TheWindowsCaptionAndBackgroundFollow) {
  Window.SetCaption("Caf\xe9");
  Window.SetBackColor(0x00FFFF);
  View.Sync();
  EXPECT_EQ(Drawn().windowTitle(), QString::fromUtf8("Café"));
  EXPECT_EQ(Drawn().Surface().palette().color(QPalette::Window), QColor(255, 255, 0));
}

TEST_F(Mirror, PlacesAndFontsGrowWithTheWindow) {
  QSize before = WidgetOf(Window.Second).size();
  int font_size = WidgetOf(Window.Push).font().pixelSize();
  Drawn().resize(Drawn().width() * 2, Drawn().height() * 2);
  QApplication::processEvents();
  EXPECT_NEAR(WidgetOf(Window.Second).width(), before.width() * 2, 2);
  EXPECT_NEAR(WidgetOf(Window.Push).font().pixelSize(), font_size * 2, 2);
}

TEST_F(Mirror, ThePaddingOfATagIsFoldedAndItsLongRunsBreakTheLine) {
  EXPECT_EQ(dynamic_cast<QLabel&>(WidgetOf(Window.Tag)).text(), "The\ntitle of it");
}

TEST_F(Mirror, ALabelShrinksItsFontUntilItsTextFits) {
  auto& label = dynamic_cast<QLabel&>(WidgetOf(Window.Tag));
  int font_size = label.font().pixelSize();
  Window.Tag.SetCaption(
      "A very long tag that can by no means find room at the letters' full size, whatever is done about it");
  View.Sync();
  EXPECT_LT(label.font().pixelSize(), font_size);
  QRect needed = QFontMetrics(label.font()).boundingRect(QRect(0, 0, label.width(), 0), Qt::TextWordWrap, label.text());
  EXPECT_LE(needed.height(), label.height() + QFontMetrics(label.font()).descent());
}

TEST_F(Mirror, AWindowThatIsNotVisibleIsNotDrawn) {
  kit::SmallWindow other(Windows);
  View.Sync();
  EXPECT_EQ(View.ViewOf(other), nullptr);
}

}  // namespace
}  // namespace desktop
