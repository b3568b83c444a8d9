// Every command can be reached by keyboard alone.
#include <gtest/gtest.h>

#include <QMenu>
#include <set>

#include "desktop/help_viewer.h"
#include "desktop/text.h"
#include "tests/desktop/whole_program.h"

namespace desktop {
namespace {

class ByKey : public testing::Test, public WholeProgram {
 protected:
  void AltAnd(char letter) {
    QKeyEvent press(QEvent::KeyPress, letter, Qt::AltModifier, QString(QLatin1Char(letter)));
    QApplication::sendEvent(Form().focusWidget(), &press);
  }
  static void Press(QWidget& widget, Qt::Key key) { QTest::keyClick(&widget, key); }
  static QMenu* OpenMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

  // Walks the open menu by Down, and its submenus by Right and Left.
  void Walk(QMenu& menu, std::set<const QAction*>& met) {
    while (menu.activeAction() && met.insert(menu.activeAction()).second) {
      if (menu.activeAction()->menu()) {
        Press(menu, Qt::Key_Right);
        QMenu* inner = OpenMenu();
        ASSERT_NE(inner, &menu);
        ASSERT_NE(inner->activeAction(), nullptr);
        Walk(*inner, met);
        Press(*inner, Qt::Key_Left);
      }
      Press(menu, Qt::Key_Down);
    }
  }
};

TEST_F(ByKey, EveryLineOfEveryMenu) {
  std::set<const QAction*> met;
  for (forms::Control* control : Screen().Controls()) {
    if (control->Kind != forms::Kind::MenuItem || static_cast<forms::MenuItem*>(control)->Level != 0) continue;
    auto& item = static_cast<forms::MenuItem&>(*control);
    QAction* top = Form().Menu().ActionOf(item);
    if (!top->menu()) continue;
    AltAnd(forms::HotKey(item.Caption()));
    ASSERT_EQ(OpenMenu(), top->menu()) << item.Name;
    Walk(*top->menu(), met);
    while (QMenu* menu = OpenMenu()) menu->close();
  }
  for (forms::Control* control : Screen().Controls()) {
    if (control->Kind != forms::Kind::MenuItem || static_cast<forms::MenuItem*>(control)->Level == 0) continue;
    EXPECT_TRUE(met.contains(Form().Menu().ActionOf(static_cast<forms::MenuItem&>(*control)))) << control->Name;
  }
}

TEST_F(ByKey, EveryButtonAndOption) {
  std::set<std::string> pressed;
  for (forms::Control* control : Screen().Controls()) {
    if (control->Kind != forms::Kind::Button && control->Kind != forms::Kind::OptionButton) continue;
    control->Enable();
    control->Click = [&pressed, control] { pressed.insert(control->Name); };
  }
  View.Sync();
  for (char letter : std::string("RWODSEMBNG")) AltAnd(letter);
  EXPECT_EQ(pressed, (std::set<std::string>{"cmdReset", "cmdNew", "cmdSort", "cmdDelete", "cmdSave", "cmdEdit",
                                            "cmdMatch", "cmdPrevious", "cmdNext", "optnoteson"}));
}

TEST_F(ByKey, TheTwoMenusWithoutLines) {
  std::set<std::string> chosen;
  Screen().mnuHelp.Click = [&] { chosen.insert("help"); };
  Screen().mnuSort.Click = [&] { chosen.insert("sort"); };
  Screen().cmdSort.Disable();
  View.Sync();
  AltAnd('H');
  AltAnd('O');
  EXPECT_EQ(chosen, (std::set<std::string>{"help", "sort"}));
}

// From any stop of any window Tab comes back to it over all the others.
TEST_F(ByKey, TabLeadsOutOfEveryPlace) {
  std::vector<FormView*> all = OpenAll();
  std::size_t stops = 0;
  Program.Copy.Modal = false;  // or the others would take no input
  for (FormView* form : all) {
    forms::Window& window = form->Window();
    for (forms::Control* control : window.Controls()) control->GotFocus = control->LostFocus = nullptr;
    std::vector<const forms::Control*> met;
    while (std::find(met.begin(), met.end(), window.Focus()) == met.end()) {
      met.push_back(window.Focus());
      View.Deliver([&] { window.UserKey(forms::Key::Tab); });
    }
    EXPECT_EQ(window.Focus(), met.front()) << window.Name;
    stops += met.size();
  }
  EXPECT_GT(stops, 20U);
}

TEST_F(ByKey, TabLeadsRoundTheHelpWindow) {
  HelpViewer help("/nowhere");
  help.Open(0);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
  std::set<const QWidget*> met;
  for (int tabs = 0; tabs < 8; ++tabs) {
    met.insert(help.focusWidget());
    Press(*help.focusWidget(), Qt::Key_Tab);
  }
  EXPECT_TRUE(met.contains(&help.Page()));
}

}  // namespace
}  // namespace desktop
