// In every palette of the desktop every text can be read.
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QTextBlock>

#include "desktop/collection_dialog.h"
#include "desktop/contrast.h"
#include "desktop/help_viewer.h"
#include "desktop/input_dialog.h"
#include "desktop/message_box.h"
#include "tests/desktop/palettes.h"
#include "tests/desktop/whole_program.h"
#include "tests/kit/source_tree.h"

namespace desktop {
namespace {

void ExpectReadable(const QWidget& widget, QPalette::ColorRole text, QPalette::ColorRole ground) {
  for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const QPalette& colours = widget.palette();
    EXPECT_GE(Contrast(colours.color(group, text), colours.color(group, ground)), TextContrast)
        << widget.metaObject()->className() << " " << text << " in group " << group;
  }
}

void ExpectReadable(const QWidget& widget) {
  if (qobject_cast<const QLabel*>(&widget)) ExpectReadable(widget, QPalette::WindowText, QPalette::Window);
  if (qobject_cast<const QRadioButton*>(&widget)) ExpectReadable(widget, QPalette::WindowText, QPalette::Window);
  if (qobject_cast<const QPushButton*>(&widget)) ExpectReadable(widget, QPalette::ButtonText, QPalette::Button);
  if (!qobject_cast<const QLineEdit*>(&widget) && !qobject_cast<const QTextBrowser*>(&widget)) return;
  for (auto text : {QPalette::Text, QPalette::PlaceholderText, QPalette::Link, QPalette::LinkVisited})
    ExpectReadable(widget, text, QPalette::Base);
  ExpectReadable(widget, QPalette::HighlightedText, QPalette::Highlight);
}

void ExpectAllReadable(const QWidget& window) {
  for (const QWidget* part : window.findChildren<QWidget*>()) ExpectReadable(*part);
}

// What lies behind a control: its own ground, or the window's.
QColor GroundOf(const forms::Control& control) {
  return ToColour(control.Look().Transparent ? control.Owner().BackColor() : control.Look().Back);
}

TEST_P(Palettes, TheFormsKeepTheirOwnColours) {
  WholeProgram program;
  for (FormView* form : program.OpenAll()) {
    for (forms::Control* control : form->Window().Controls()) {
      ControlView* view = control->Visible() ? form->ViewOf(*control) : nullptr;
      auto* label = view ? qobject_cast<QLabel*>(&view->Widget()) : nullptr;
      auto* field = view ? qobject_cast<QLineEdit*>(&view->Widget()) : nullptr;
      if (!label && !field) continue;
      QColor text = view->Widget().palette().color(label ? QPalette::WindowText : QPalette::Text);
      EXPECT_GE(Contrast(text, GroundOf(*control)), TextContrast) << control->Name;
    }
  }
}

TEST_P(Palettes, EveryTextOfBoxesAndHelpCanBeRead) {
  MessageBox message(forms::Icon::Question, "Title", "Save?", forms::Buttons::YesNo, nullptr);
  ExpectAllReadable(message);
  InputDialog input("Title", "What?", nullptr, [](const QString&) {});
  ExpectAllReadable(input);
  CollectionDialog question(LostCollection);
  ExpectAllReadable(question);
  HelpViewer help(kit::DeliveredFolder().string());
  help.Open(0);
  ExpectAllReadable(help);
}

TEST_P(Palettes, TheLinksOfTheHelpCanBeRead) {
  HelpViewer help(kit::DeliveredFolder().string());
  help.Open(0);
  QColor ground = help.Page().palette().color(QPalette::Base);
  int links = 0;
  for (QTextBlock block = help.Page().document()->begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      QTextCharFormat format = piece.fragment().charFormat();
      if (!format.isAnchor()) continue;
      ++links;
      EXPECT_GE(Contrast(format.foreground().color(), ground), TextContrast);
    }
  }
  EXPECT_GT(links, 0);
}

TEST_P(Palettes, MenusCanBeRead) {
  WholeProgram program;
  const QMenu& menu = *program.Form().Menu().ActionOf(program.Screen().mnuFile1)->menu();
  ExpectReadable(menu, QPalette::WindowText, QPalette::Window);
  ExpectReadable(menu, QPalette::Text, QPalette::Window);
  ExpectReadable(menu, QPalette::HighlightedText, QPalette::Highlight);
  ExpectReadable(program.Form().Menu().Bar(), QPalette::WindowText, QPalette::Window);
}

TEST_P(Palettes, TheNoticeLineCanBeRead) {
  NoticeLine line([] {});
  line.Show("Saved as films.pdf", {{"Open", [] {}}}, "a");
  for (const QWidget* part : line.findChildren<QWidget*>()) {
    if (!part->isVisibleTo(&line) || qobject_cast<const QProgressBar*>(part)) continue;
    bool button = qobject_cast<const QPushButton*>(part);
    QColor text = part->palette().color(button ? QPalette::ButtonText : QPalette::WindowText);
    QColor ground = part->palette().color(button ? QPalette::Button : QPalette::Window);
    EXPECT_GE(Contrast(text, ground), TextContrast) << part->metaObject()->className();
  }
}

INSTANTIATE_TEST_SUITE_P(Schemes, Palettes, testing::ValuesIn(Schemes),
                         [](const auto& scheme) { return scheme.param.Name; });

}  // namespace
}  // namespace desktop
