// Sends the events that the user's mouse and keys would cause.
#include "tests/desktop/widget_player.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

#include "desktop/failure_box.h"
#include "desktop/help_viewer.h"
#include "desktop/notice_line.h"
#include "desktop/picture.h"
#include "desktop/text.h"
#include "tests/desktop/drawn_check.h"
#include "tests/story/names.h"

namespace story {
namespace {

// clang-format off
struct KeyRow { forms::Key Key; Qt::Key Code; const char* Characters; };
constexpr KeyRow KeyRows[] = {
  { forms::Key::Tab,   Qt::Key_Tab,    "\t"   }, { forms::Key::ShiftTab, Qt::Key_Backtab, ""  }, { forms::Key::Enter, Qt::Key_Return, "\r" },
  { forms::Key::Esc,   Qt::Key_Escape, "\x1b" }, { forms::Key::Space,    Qt::Key_Space,   " " }, { forms::Key::Up,    Qt::Key_Up,     ""   },
  { forms::Key::Down,  Qt::Key_Down,   ""     }, { forms::Key::Home,     Qt::Key_Home,    ""  }, { forms::Key::End,   Qt::Key_End,    ""   },
  { forms::Key::F1,    Qt::Key_F1,     ""     },
};
// clang-format on

void SendMouse(QWidget& widget, QEvent::Type type, Qt::MouseButton button, const QPoint& position) {
  Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
  QMouseEvent event(type, position, widget.mapToGlobal(position), button, held, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

void ClickAt(QWidget& widget, const QPoint& position) {
  SendMouse(widget, QEvent::MouseButtonPress, Qt::LeftButton, position);
  SendMouse(widget, QEvent::MouseButtonRelease, Qt::LeftButton, position);
}

QPoint SpotOnItem(QWidget& face, int index) {
  auto& widget = dynamic_cast<QListWidget&>(*face.parentWidget());
  widget.scrollToItem(widget.item(index));
  return widget.visualItemRect(widget.item(index)).center();
}

bool InTextBox(const forms::Window& window) { return window.Focus() && window.Focus()->Kind == forms::Kind::TextBox; }

}  // namespace

WidgetPlayer::WidgetPlayer(Program& program)
    : program_(program),
      view_(program.Windows, [&program](const std::function<void()>& event) { program.Deliver(event); }) {}

QWidget* WidgetPlayer::FaceOf(const forms::Control& control) const {
  desktop::FormView* form = view_.ViewOf(control.Owner());
  desktop::ControlView* view = form ? form->ViewOf(control) : nullptr;
  return view && view->Widget().isVisible() ? &view->Face() : nullptr;
}

void WidgetPlayer::ClickOn(const std::string& name, bool twice) {
  forms::Control& control = ControlNamed(program_.Windows, name);
  QWidget* face = FaceOf(control);
  if (control.Kind == forms::Kind::MenuItem) {
    ChooseFromMenu(static_cast<forms::MenuItem&>(control));
  } else if (face && control.Kind == forms::Kind::ListBox) {
    // A full list has no spot outside its items, so a click that picks none goes straight to the form.
    auto click = twice ? &forms::Window::UserDblClick : &forms::Window::UserClick;
    program_.Deliver([&] { (control.Owner().*click)(control); });
  } else if (face) {
    QPoint centre = face->rect().center();
    ClickAt(*face, centre);
    if (twice && face->isVisible()) SendMouse(*face, QEvent::MouseButtonDblClick, Qt::LeftButton, centre);
    if (twice && face->isVisible()) SendMouse(*face, QEvent::MouseButtonRelease, Qt::LeftButton, centre);
  }
  Settle();
}

void WidgetPlayer::Move(const std::string& name) {
  QWidget* face = nullptr;
  if (const forms::Window* window = FindWindow(program_.Windows, name)) {
    if (desktop::FormView* form = view_.ViewOf(*window); form && form->isVisible()) face = &form->Surface();
  } else {
    face = FaceOf(ControlNamed(program_.Windows, name));
  }
  if (face) SendMouse(*face, QEvent::MouseMove, Qt::NoButton, face->rect().center());
  Settle();
}

void WidgetPlayer::Pick(const std::string& list, const std::string& item) {
  forms::ListBox& box = ListNamed(program_.Windows, list);
  QWidget* face = FaceOf(box);
  if (!face || !box.Enabled() || program_.Ended()) return;
  ClickAt(*face, SpotOnItem(*face, ItemNamed(box, item)));
  Settle();
}

// Clicks an item of the bar there, any other item in its opened menu.
void WidgetPlayer::ChooseFromMenu(const forms::MenuItem& item) {
  desktop::FormView* form = view_.ViewOf(item.Owner());
  QAction* action = form && form->isVisible() ? form->Menu().ActionOf(item) : nullptr;
  if (!action || action->menu()) return;
  QObject* place = action->associatedObjects().value(0);
  if (auto* menu = qobject_cast<QMenu*>(place)) {
    menu->popup(form->mapToGlobal(QPoint()));
    ClickAt(*menu, menu->actionGeometry(action).center());
    menu->close();
  } else if (auto* bar = qobject_cast<QMenuBar*>(place)) {
    ClickAt(*bar, bar->actionGeometry(action).center());
  }
}

void WidgetPlayer::Key(const std::string& key) {
  NamedKey named = KeyNamed(key);
  if (const auto* with_alt = std::get_if<AltKey>(&named)) {
    QString letter = desktop::Shown({&with_alt->Letter, 1});
    Press(letter.toUpper().at(0).unicode(), Qt::AltModifier, letter);
  } else if (const auto* character = std::get_if<char>(&named)) {
    PressCharacter(*character);
  } else if (std::get<forms::Key>(named) == forms::Key::Space) {
    PressCharacter(' ');
  } else {
    for (const KeyRow& row : KeyRows)
      if (row.Key == std::get<forms::Key>(named)) Press(row.Code, Qt::NoModifier, QString::fromLatin1(row.Characters));
  }
  Settle();
}

void WidgetPlayer::Type(const std::string& text) {
  for (char character : text) PressCharacter(character);
  Settle();
}

void WidgetPlayer::PressCharacter(char character) {
  const forms::Window* front = program_.Windows.Front();
  if (front && InTextBox(*front)) Press(Qt::Key_End, Qt::NoModifier, {});
  QString shown = desktop::Shown({&character, 1});
  Press(shown.toUpper().at(0).unicode(), Qt::NoModifier, shown);
}

void WidgetPlayer::Press(int key, Qt::KeyboardModifiers modifiers, const QString& characters) {
  desktop::FormView* form = view_.Front();
  if (!form) return;
  QWidget& widget = form->focusWidget() ? *form->focusWidget() : *form;
  for (QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers, characters);
    QApplication::sendEvent(&widget, &event);
  }
}

void WidgetPlayer::Clear() {
  const forms::Window* front = program_.Windows.Front();
  if (!front || !InTextBox(*front)) return;
  Press(Qt::Key_A, Qt::ControlModifier, QStringLiteral("\x01"));
  Press(Qt::Key_Delete, Qt::NoModifier, QStringLiteral("\x7f"));
  Settle();
}

void WidgetPlayer::Close(const std::string& window) {
  if (program_.Ended()) return;
  if (desktop::FormView* form = view_.ViewOf(WindowNamed(program_.Windows, window)); form && form->isVisible())
    form->close();
  Settle();
}

void WidgetPlayer::Settle() {
  if (program_.Ended()) return;
  if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  view_.Paint();
  QApplication::processEvents();
  CheckDrawn(program_.Windows, view_);
}

void WidgetPlayer::Picture(const std::string& path) {
  desktop::FormView* front = view_.Front();
  if (!front || !desktop::SavePicture(*front, path)) throw Unplayable{"expected a picture in " + path + ", got none"};
}

void WidgetPlayer::PagePicture(const runtime::PrintJob& job, std::size_t page, const std::string& path) {
  if (!desktop::SavePagePicture(job, page, path)) throw Unplayable{"expected a picture in " + path + ", got none"};
}

void WidgetPlayer::HelpPicture(const std::string& folder, int topic, const std::string& path) {
  desktop::HelpViewer viewer(folder);
  viewer.Open(topic);
  QApplication::processEvents();
  if (!desktop::SavePicture(viewer, path)) throw Unplayable{"expected a picture in " + path + ", got none"};
}

// The folder of a story has another name in each run.
void WidgetPlayer::FailurePicture(const runtime::Failure& failure, const std::string& path) {
  desktop::FailureBox box(failure, QStringLiteral("/home/anna/Film Collection"), nullptr);
  box.show();
  QApplication::processEvents();
  if (!desktop::SavePicture(box, path)) throw Unplayable{"expected a picture in " + path + ", got none"};
}

void WidgetPlayer::NoticePicture(const std::string& text, const std::string& buttons, const std::string& path) {
  const QString key = QStringLiteral("picture");
  std::vector<desktop::NoticeLine::Action> actions;
  for (const QString& caption : desktop::Shown(buttons).split('|', Qt::SkipEmptyParts))
    actions.push_back({caption, {}});
  view_.Notices().Show(desktop::Shown(text), std::move(actions), key);
  QApplication::processEvents();
  Picture(path);
  view_.ClearNotice(key);
}

void WidgetPlayer::WorkPicture(const std::string& work, int percent, const std::string& path) {
  view_.Notices().Progress(desktop::Shown(work), percent / 100.0);
  QApplication::processEvents();
  Picture(path);
  view_.EndProgress();
}

}  // namespace story
