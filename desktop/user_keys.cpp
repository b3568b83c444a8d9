// Keys go to the form; a text box edits natively after asking the form.
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <optional>

#include "desktop/field_view.h"
#include "desktop/form_view.h"
#include "desktop/notices.h"
#include "desktop/stack_view.h"
#include "desktop/text.h"
#include "desktop/user_input.h"
#include "forms/window_stack.h"

namespace desktop {
namespace {

std::optional<forms::Key> NamedKey(const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Tab:
      return key.modifiers() & Qt::ShiftModifier ? forms::Key::ShiftTab : forms::Key::Tab;
    case Qt::Key_Backtab:
      return forms::Key::ShiftTab;
    case Qt::Key_Enter:
    case Qt::Key_Return:
      return forms::Key::Enter;
    case Qt::Key_Escape:
      return forms::Key::Esc;
    case Qt::Key_Space:
      return forms::Key::Space;
    case Qt::Key_Up:
      return forms::Key::Up;
    case Qt::Key_Down:
      return forms::Key::Down;
    case Qt::Key_Home:
      return forms::Key::Home;
    case Qt::Key_End:
      return forms::Key::End;
    case Qt::Key_F1:
      return forms::Key::F1;
    default:
      return std::nullopt;
  }
}

// Keys that a text box handles natively.
bool Edits(forms::Key key) { return key == forms::Key::Space || key == forms::Key::Home || key == forms::Key::End; }

// The characters that a key types; none with Ctrl, Alt or Meta.
QString Characters(const QKeyEvent& key) {
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return {};
  return key.text().isEmpty() || key.text().at(0).category() == QChar::Other_Control ? QString() : key.text();
}

std::optional<char> AltLetter(const QKeyEvent& key) {
  bool letter = key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z;
  bool alt = (key.modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier;
  return letter && alt ? std::optional(static_cast<char>(key.key())) : std::nullopt;
}

}  // namespace

// Alt and a letter go to the form, not to the toolkit's own hot keys.
bool UserInput::KeepsFromHotKeys(QKeyEvent& key) {
  if (!AltLetter(key)) return false;
  key.accept();
  return true;
}

bool UserInput::KeyPressed(QKeyEvent& key) {
  if (std::optional<char> letter = AltLetter(key)) {
    AltPressed(*letter);
    return true;
  }
  if (key.key() == Qt::Key_F10 && key.modifiers() == Qt::NoModifier) {
    form_.Menu().Enter();
    return true;
  }
  forms::Control* holder = Window().Focus();
  auto* field = holder ? dynamic_cast<FieldView*>(form_.ViewOf(*holder)) : nullptr;
  std::optional<forms::Key> named = NamedKey(key);
  if (field && (!named || Edits(*named))) return KeyInField(*field, key);
  if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return true;
  if (named) {
    stack_.Deliver([&] { Window().UserKey(*named); });
    return true;
  }
  for (char character : Stored(Characters(key))) stack_.Deliver([&] { Window().UserType(character); });
  return true;
}

void UserInput::AltPressed(char letter) {
  forms::MenuItem* menu = nullptr;
  stack_.Deliver([&] { menu = Window().UserAlt(letter); });
  if (menu) form_.Menu().Open(*menu);
}

bool UserInput::KeyInField(FieldView& field, QKeyEvent& key) {
  QString characters = Characters(key);
  if (!characters.isEmpty() && !AskKeyPress(field, characters)) return true;
  static_cast<QObject&>(field).event(&key);
  key.accept();
  return true;
}

// Whether the box takes the characters: the code page has them, and KeyPress leaves the focus in the box.
bool UserInput::AskKeyPress(FieldView& field, const QString& characters) {
  if (QString refused = NotTyped(characters); !refused.isEmpty()) {
    Refuse(refused);
    return false;
  }
  bool taken = false;
  stack_.Deliver([&] { taken = Window().UserKeyPress(field.Box()); });
  return taken;
}

void UserInput::Refuse(const QString& characters) {
  Window().Owner().Desk.Beep();
  stack_.Notices().Show(NotStoredText(characters), {}, CharacterNotice);
}

// Committed text is typed text; preedit text is not.
bool UserInput::Composed(FieldView& field, QInputMethodEvent& event) {
  if (event.commitString().isEmpty() || AskKeyPress(field, event.commitString())) return false;
  QInputMethodEvent nothing;
  static_cast<QObject&>(field).event(&nothing);
  event.accept();
  return true;
}

}  // namespace desktop
