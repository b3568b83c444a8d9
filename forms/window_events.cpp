// What the user's clicks and keys do.
#include <algorithm>

#include "forms/window.h"
#include "forms/window_stack.h"

namespace forms {
namespace {

// Pressed twice by a double click.
bool IsPressed(const Control& control) {
  return control.Kind == Kind::Button || control.Kind == Kind::OptionButton || control.Kind == Kind::CheckBox;
}

void PressControl(Control& control) {
  if (control.Kind == Kind::OptionButton) {
    static_cast<OptionButton&>(control).SelectAndClick();
    return;
  }
  if (control.Kind == Kind::CheckBox) {
    auto& check = static_cast<CheckBox&>(control);
    check.SetValue(!check.Value());
  }
  Run(control.Click);
}

}  // namespace

bool Window::TakesInput() const { return InSight() && !windows_->BlockedByModal(*this); }

bool Window::Reachable(const Control& control) const {
  return TakesInput() && control.Visible() && control.Enabled() && !Covered(control);
}

void Window::UserClick(Control& control) {
  if (!Reachable(control) || !FocusByUser(control)) return;
  PressControl(control);
  Run(control.MouseUp);
}

void Window::UserDblClick(Control& control) {
  UserClick(control);
  UserSecondClick(control);
}

void Window::UserSecondClick(Control& control) {
  if (IsPressed(control)) {
    UserClick(control);
  } else if (Reachable(control)) {
    Run(control.DblClick);
  }
}

void Window::UserRightClick(Control& control) {
  if (control.Kind == Kind::TextBox && Reachable(control)) FocusByUser(control);
}

void Window::UserMove(Control* control) {
  if (!TakesInput() || (control && (!control->Visible() || Covered(*control)))) return;
  Run(control ? control->MouseMove : MouseMove);
}

void Window::UserPick(ListBox& list, int index) {
  if (!Reachable(list) || !FocusByUser(list) || index < 0) return;
  list.Select(index);
  Run(list.MouseDown);
}

void Window::UserKey(Key key) {
  if (!TakesInput()) return;
  int tab = focus_ ? focus_->Ids.Tab : NoTab;
  switch (key) {
    case Key::Tab:
    case Key::ShiftTab:
      if (Control* next = NextStop(tab, key == Key::Tab ? 1 : -1)) MoveFocus(*next);
      return;
    case Key::Esc:
      if (CancelButton && CancelButton->Visible() && CancelButton->Enabled()) {
        Run(CancelButton->Click);
        return;
      }
      break;
    case Key::F1:
      windows_->Desk.Help(HelpContext);
      return;
    default:
      break;
  }
  if (!focus_) return;
  if (focus_->Kind == Kind::ListBox) {
    KeyInList(static_cast<ListBox&>(*focus_), key);
  } else if (focus_->Kind == Kind::TextBox) {
    if (key == Key::Space) UserType(' ');
  } else if (key == Key::Space || (key == Key::Enter && focus_->Kind == Kind::Button)) {
    PressControl(*focus_);
  }
}

void Window::KeyInList(ListBox& list, Key key) {
  int last = static_cast<int>(list.Items().size()) - 1;
  int index = list.ListIndex();
  int wanted = index;
  switch (key) {
    case Key::Up:
      wanted = std::max(index - 1, std::min(index, 0));
      break;
    case Key::Down:
      wanted = std::min(index + 1, last);
      break;
    case Key::Home:
      wanted = std::min(0, last);
      break;
    case Key::End:
      wanted = last;
      break;
    default:
      // Where a list has no KeyPress of its own, Enter takes once more what is selected.
      key == Key::Enter && !list.KeyPress ? list.Select(index) : Run(list.KeyPress);
      return;
  }
  if (wanted != index) list.Select(wanted);
}

MenuItem* Window::UserAlt(char letter) {
  if (!TakesInput()) return nullptr;
  if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  if (Control* control = ByHotKey(letter)) {
    if (control->Kind == Kind::OptionButton || FocusByUser(*control)) PressControl(*control);
    return nullptr;
  }
  for (Control* control : controls_) {
    if (control->Kind != Kind::MenuItem) continue;
    auto* menu = static_cast<MenuItem*>(control);
    if (menu->Level != 0 || HotKey(menu->Caption()) != letter) continue;
    Run(menu->Click);
    return menu;
  }
  return nullptr;
}

void Window::UserType(char character) {
  if (!TakesInput() || !focus_) return;
  if (focus_->Kind == Kind::TextBox) {
    auto& box = static_cast<TextBox&>(*focus_);
    if (UserKeyPress(box)) UserEdit(box, box.Text() + character);
  } else if (character == ' ') {
    UserKey(Key::Space);
  } else {
    Run(focus_->KeyPress);
  }
}

bool Window::UserKeyPress(TextBox& box) {
  if (!Reachable(box) || focus_ != &box || !box.TakesTyping) return false;
  Run(box.KeyPress);
  return focus_ == &box;
}

void Window::UserEdit(TextBox& box, std::string_view text) {
  if (Reachable(box) && focus_ == &box && box.TakesTyping) box.SetText(text);
}

void Window::UserClose() {
  if (!TakesInput()) return;
  Run(Unload);
  Hide();
}

}  // namespace forms
