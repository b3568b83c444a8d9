// In every palette of the desktop edges, marks of the focus, chosen lines and scroll bars can be seen.
#include <QColorDialog>
#include <QImage>
#include <QMenu>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <algorithm>
#include <initializer_list>

#include "desktop/collection_dialog.h"
#include "desktop/contrast.h"
#include "desktop/help_viewer.h"
#include "desktop/input_dialog.h"
#include "tests/desktop/palettes.h"
#include "tests/desktop/whole_program.h"
#include "tests/kit/source_tree.h"

namespace desktop {
namespace {

// How far the line at the middle of the widget's left side stands out from the window beside it.
double EdgeContrast(QWidget& widget) {
  QImage image = widget.window()->grab().toImage();
  double ratio = image.devicePixelRatio();
  QPoint side = widget.mapTo(widget.window(), QPoint(0, widget.height() / 2)) * ratio;
  double most = 0;
  for (int x = 0; x < 3 * ratio; ++x)
    most = std::max(most, Contrast(image.pixelColor(side + QPoint(x, 0)), image.pixelColor(side - QPoint(2, 0))));
  return most;
}

// How many pixels of the widget stand out in one picture from the other.
int Marked(const QImage& with, const QImage& without) {
  int marked = 0;
  for (int y = 0; y < with.height(); ++y)
    for (int x = 0; x < with.width(); ++x)
      if (Contrast(with.pixelColor(x, y), without.pixelColor(x, y)) >= MarkContrast) ++marked;
  return marked;
}

TEST_P(Palettes, TheChosenLineOfAMenuCanBeSeen) {
  WholeProgram program;
  QMenu* menu = program.Form().Menu().ActionOf(program.Screen().mnuFile1)->menu();
  menu->popup({});
  QRect line = menu->actionGeometry(menu->actions().front());
  menu->setActiveAction(nullptr);
  QImage without = menu->grab(line).toImage();
  menu->setActiveAction(menu->actions().front());
  QImage with = menu->grab(line).toImage();
  menu->close();
  EXPECT_GE(Marked(with, without), line.width());
}

TEST_P(Palettes, ButtonsOptionsAndLinesHaveAnEdge) {
  InputDialog input("Title", "What?", nullptr, [](const QString&) {});
  input.show();
  EXPECT_GE(EdgeContrast(*input.findChild<QLineEdit*>()), MarkContrast);
  for (QPushButton* button : input.findChildren<QPushButton*>())
    EXPECT_GE(EdgeContrast(*button), MarkContrast) << button->text().toStdString();
  CollectionDialog question(LostCollection);
  question.show();
  for (QRadioButton* option : question.findChildren<QRadioButton*>())
    EXPECT_GE(EdgeContrast(*option), MarkContrast) << option->text().toStdString();
  QColorDialog colours;
  colours.setOption(QColorDialog::DontUseNativeDialog);
  colours.show();
  for (QSpinBox* number : colours.findChildren<QSpinBox*>())
    EXPECT_TRUE(!number->isVisible() || EdgeContrast(*number) >= MarkContrast);
}

TEST_P(Palettes, TheFocusOfBoxesAndHelpCanBeSeen) {
  InputDialog input("Title", "What?", nullptr, [](const QString&) {});
  input.show();
  CollectionDialog question(LostCollection);
  question.show();
  QColorDialog colours;
  colours.setOption(QColorDialog::DontUseNativeDialog);
  colours.show();
  HelpViewer help(kit::DeliveredFolder().string());
  help.Open(0);
  for (QWidget* window : std::initializer_list<QWidget*>{&input, &question, &colours, &help}) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    for (QWidget* part : window->findChildren<QWidget*>()) {
      bool stop = part->focusPolicy() & Qt::TabFocus && part->isEnabled() && part->isVisible();
      bool marked_around = qobject_cast<QSpinBox*>(part->parentWidget());
      if (!stop || marked_around || qobject_cast<QScrollBar*>(part)) continue;
      part->clearFocus();
      QImage without = part->grab().toImage();
      part->setFocus();
      EXPECT_GE(Marked(part->grab().toImage(), without), part->height()) << part->metaObject()->className();
    }
  }
}

TEST_P(Palettes, TheScrollBarCanBeSeen) {
  QScrollBar bar;
  bar.setRange(0, 10);
  bar.resize(bar.sizeHint().width(), 200);
  QImage image = bar.grab().toImage();
  QColor ground = image.pixelColor(0, image.height() / 2);
  int seen = 0;
  for (int y = 0; y < image.height(); ++y)
    if (Contrast(image.pixelColor(image.width() / 2, y), ground) >= MarkContrast) ++seen;
  EXPECT_GE(seen, 20);
}

}  // namespace
}  // namespace desktop
