// Widgets show what the form says, and are created only when needed.
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>

#include "tests/desktop/small_window.h"

namespace desktop {
namespace {

class Mirror : public testing::Test, public DrawnWindow {};

TEST_F(Mirror, AControlGetsItsWidgetWhenItIsFirstShown) {
  EXPECT_EQ(Drawn().ViewOf(Form.List), nullptr);
  Form.List.Show();
  View.Sync();
  EXPECT_TRUE(WidgetOf(Form.List).isVisible());
}

TEST_F(Mirror, AListShowsWholeRowsInItsPlace) {
  Form.List.Show();
  View.Sync();
  for (int width : {400, 415, 430, 445}) {
    Drawn().resize(width, width * 2 / 3);
    QApplication::processEvents();
    auto& list = dynamic_cast<QListWidget&>(WidgetOf(Form.List));
    int rows = list.viewport()->height();
    EXPECT_EQ(rows % list.sizeHintForRow(0), 0) << width;
    EXPECT_GT(rows, 0);
  }
}

TEST_F(Mirror, ALaterControlLiesOverAnEarlierOneThatWasShownLater) {
  Form.Title.Hide();
  Form.List.Show();
  View.Sync();
  Form.Title.Show();
  View.Sync();
  const QObjectList& order = Drawn().Surface().children();
  EXPECT_LT(order.indexOf(&WidgetOf(Form.Title)), order.indexOf(&WidgetOf(Form.List)));
}

TEST_F(Mirror, ATextCostsTheWidgetNothingUntilTheEventIsOver) {
  QString meanwhile = "none";
  Form.Save.Click = [&] {
    Form.Title.SetText("new");
    meanwhile = FieldOf(Form.Title).text();
  };
  Click(WidgetOf(Form.Save));
  EXPECT_EQ(meanwhile, "");
  EXPECT_EQ(FieldOf(Form.Title).text(), "new");
}

TEST_F(Mirror, TheFocusLeavesAWidgetBeforeItGoes) {
  Form.Title.Hide();
  View.Sync();
  EXPECT_EQ(Focus(), &WidgetOf(Form.Star));
  EXPECT_FALSE(WidgetOf(Form.Title).isVisible());
}

TEST_F(Mirror, ColoursAlignmentAndStatesFollow) {
  Form.Title.SetForeColor(0x0000FF);
  Form.Title.SetBackColor(0x00FF00);
  Form.Title.SetAlignment(forms::Align::Left);
  Form.Star.Disable();
  View.Sync();
  EXPECT_EQ(FieldOf(Form.Title).palette().color(QPalette::Text), QColor(255, 0, 0));
  EXPECT_EQ(FieldOf(Form.Title).palette().color(QPalette::Base), QColor(0, 255, 0));
  EXPECT_TRUE(FieldOf(Form.Title).alignment() & Qt::AlignLeft);
  EXPECT_FALSE(WidgetOf(Form.Star).isEnabled());
}

TEST_F(Mirror, TheWindowsCaptionAndBackgroundFollow) {
  Form.SetCaption("Caf\xe9");
  Form.SetBackColor(0x00FFFF);
  View.Sync();
  EXPECT_EQ(Drawn().windowTitle(), QString::fromUtf8("Café"));
  EXPECT_EQ(Drawn().Surface().palette().color(QPalette::Window), QColor(255, 255, 0));
}

TEST_F(Mirror, PlacesAndFontsGrowWithTheWindow) {
  QSize before = WidgetOf(Form.Star).size();
  int font_size = WidgetOf(Form.Save).font().pixelSize();
  Drawn().resize(Drawn().width() * 2, Drawn().height() * 2);
  QApplication::processEvents();
  EXPECT_NEAR(WidgetOf(Form.Star).width(), before.width() * 2, 2);
  EXPECT_NEAR(WidgetOf(Form.Save).font().pixelSize(), font_size * 2, 2);
}

TEST_F(Mirror, ThePaddingOfATagIsFoldedAndItsLongRunsBreakTheLine) {
  EXPECT_EQ(dynamic_cast<QLabel&>(WidgetOf(Form.TitleTag)).text(), "The\ntitle of it");
}

TEST_F(Mirror, ALabelShrinksItsFontUntilItsTextFits) {
  auto& label = dynamic_cast<QLabel&>(WidgetOf(Form.TitleTag));
  int font_size = label.font().pixelSize();
  Form.TitleTag.SetCaption(
      "A very long tag that can by no means find room at the letters' full size, whatever is done about it");
  View.Sync();
  EXPECT_LT(label.font().pixelSize(), font_size);
  QRect needed = QFontMetrics(label.font()).boundingRect(QRect(0, 0, label.width(), 0), Qt::TextWordWrap, label.text());
  EXPECT_LE(needed.height(), label.height() + QFontMetrics(label.font()).descent());
}

TEST_F(Mirror, AWindowThatIsNotVisibleIsNotDrawn) {
  SmallForm other(Windows);
  View.Sync();
  EXPECT_EQ(View.ViewOf(other), nullptr);
}

}  // namespace
}  // namespace desktop
