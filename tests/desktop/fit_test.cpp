// At every size and shape of the window what is written is whole.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <algorithm>

#include "desktop/application_look.h"
#include "desktop/button_view.h"
#include "desktop/help_viewer.h"
#include "desktop/input_dialog.h"
#include "desktop/message_box.h"
#include "desktop/text.h"
#include "tests/desktop/whole_program.h"
#include "tests/kit/source_tree.h"

namespace desktop {
namespace {

constexpr QSize Sizes[] = {{266, 200}, {400, 330}, {577, 520}, {923, 768}, {1800, 700}, {700, 1400}, {2600, 2160}};

class Fit : public testing::TestWithParam<QSize>, public WholeProgram {
 protected:
  void Resize(FormView& form) {
    form.setMinimumSize(0, 0);
    form.resize(GetParam());
    QCoreApplication::processEvents();
  }

  void ExpectFits(const QLabel& label, const std::string& name) {
    if (label.text().isEmpty()) return;
    QFontMetrics metrics(label.font());
    QRect place = label.contentsRect();
    QRect needed = metrics.boundingRect(QRect(0, 0, place.width(), 0), Qt::TextWordWrap, label.text());
    bool smallest = label.font().pixelSize() <= 6;
    EXPECT_TRUE(smallest || needed.width() <= place.width()) << name;
    EXPECT_TRUE(smallest || needed.height() - metrics.descent() <= place.height()) << name;
  }

  void ExpectFits(const forms::Captioned& control, const QWidget& widget) {
    QFont font = FittedFont(widget.font(), Shown(control.Caption()), CaptionArea(control, widget).width());
    int width = QFontMetrics(font).size(Qt::TextShowMnemonic, Shown(control.Caption())).width();
    EXPECT_TRUE(font.pixelSize() <= 6 || width <= CaptionArea(control, widget).width()) << control.Name;
    EXPECT_TRUE(font.pixelSize() <= 6 || QFontMetrics(font).ascent() <= widget.height()) << control.Name;
  }

  void ExpectFits(FormView& form) {
    for (forms::Control* control : form.Window().Controls()) {
      ControlView* view = control->Visible() ? form.ViewOf(*control) : nullptr;
      if (!view) continue;
      EXPECT_TRUE(form.Surface().rect().contains(view->Widget().geometry())) << control->Name;
      if (auto* label = qobject_cast<QLabel*>(&view->Widget())) ExpectFits(*label, control->Name);
      if (qobject_cast<QAbstractButton*>(&view->Widget()))
        ExpectFits(static_cast<forms::Captioned&>(*control), view->Widget());
    }
  }
};

TEST_P(Fit, EveryWindow) {
  for (FormView* form : OpenAll()) {
    Resize(*form);
    ExpectFits(*form);
  }
}

TEST_P(Fit, PageTwoAndTheList) {
  Resize(Form());
  Click(Screen().optnoteson);
  ExpectFits(Form());
  Click(Screen().optNotesoff);
  OpenList();
  ExpectFits(Form());
}

TEST_P(Fit, EveryLineOfEveryMenu) {
  Resize(Form());
  for (forms::Control* control : Screen().Controls()) {
    if (control->Kind != forms::Kind::MenuItem) continue;
    QMenu* menu = Form().Menu().ActionOf(static_cast<forms::MenuItem&>(*control))->menu();
    if (!menu) continue;
    menu->popup({});
    for (const QAction* line : menu->actions()) {
      int width = QFontMetrics(menu->font()).size(Qt::TextShowMnemonic, line->text()).width();
      EXPECT_LE(width + menu->fontMetrics().height(), menu->width()) << line->text().toStdString();
    }
    menu->close();
  }
}

TEST_P(Fit, BoxesInProportionAndAsWideAsTheirTitles) {
  Resize(Form());
  QString title(24, 'W');
  MessageBox message(forms::Icon::Question, title, "Yes?", forms::Buttons::YesNo, &Form());
  message.show();
  int display = message.screen()->availableSize().width();
  EXPECT_GE(message.width(), std::min(display, QFontMetrics(message.font()).horizontalAdvance(title)));
  EXPECT_GE(message.font().pixelSize(), QFontInfo(QApplication::font()).pixelSize());
  InputDialog input(title, "What?\n\nA very long line that tells what is to be entered and has to be broken in two.",
                    &Form(), [](const QString&) {});
  input.show();
  EXPECT_GE(input.width(), QFontMetrics(input.font()).horizontalAdvance(title));
  for (const QLabel* label : input.findChildren<QLabel*>())
    EXPECT_GE(label->height(), label->heightForWidth(label->width())) << label->text().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Sizes, Fit, testing::ValuesIn(Sizes), [](const auto& size) {
  return std::to_string(size.param.width()) + "x" + std::to_string(size.param.height());
});

class FitOfHelp : public testing::Test {
 protected:
  FitOfHelp() { SetUpLook(); }
  ~FitOfHelp() override {
    QApplication::setFont(font_);
    QApplication::setPalette(palette_);
  }

 private:
  QFont font_ = QApplication::font();
  QPalette palette_ = QApplication::palette();
};

TEST_F(FitOfHelp, ButtonsAndHintInLettersOfTwiceTheSize) {
  QFont twice = QApplication::font();
  twice.setPointSizeF(2 * QFontInfo(twice).pointSizeF());
  QApplication::setFont(twice);
  HelpViewer help(kit::DeliveredFolder().string());
  help.Open(0);
  for (const QPushButton* button : help.findChildren<QPushButton*>()) {
    QFontMetrics letters(button->font());
    EXPECT_GE(button->width(), letters.size(Qt::TextShowMnemonic, button->text()).width() + letters.height() / 2);
  }
  const auto* line = help.findChild<QLineEdit*>();
  EXPECT_GE(line->width(), line->fontMetrics().horizontalAdvance(line->placeholderText()));
}

}  // namespace
}  // namespace desktop
