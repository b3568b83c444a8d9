// A window: its controls, who of them holds the focus, its help context, and what the user's key and mouse events do to
// them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/controls.h"
#include "forms/desk.h"

namespace forms {

class WindowStack;

// The keys that mean something beside the characters.
enum class Key { Tab, ShiftTab, Enter, Esc, Space, Up, Down, Home, End, F1 };

class Window {
 public:
  Window(WindowStack& windows, std::string name, std::string_view caption, int width, int height);
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  const std::string Name;
  // Of the client area, in twips.
  const int Width, Height;
  Handler Load, Unload, MouseMove;
  // The button that Esc presses; nullptr for none.
  Button* CancelButton = nullptr;
  // The help topic that was set last; 0 for none.
  int HelpContext = 0;
  // While a modal window is visible the others take no input.
  bool Modal = false;
  // The window that hides this one while it is visible and in front of it; nullptr for none.
  const Window* HiddenBehind = nullptr;

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption) { caption_ = caption; }
  Colour BackColor() const { return back_; }
  void SetBackColor(Colour colour) { back_ = colour; }

  bool Visible() const { return visible_; }
  // Runs Load the first time in the window's life, brings the window to the front, and makes it visible; the first time
  // the first tab stop gets the focus.
  void Show();
  void Hide() { visible_ = false; }
  // Visible, and not hidden behind another window.
  bool InSight() const;

  Control* Focus() const { return focus_; }
  // Runs a step that shows and hides many controls as one: the focus is passed on once, at its end, if the step has
  // left the holder hidden or disabled.
  void PassFocusOnAfter(const Handler& step);
  const std::vector<Control*>& Controls() const { return controls_; }
  WindowStack& Owner() const { return *windows_; }

  // What the user does. Nothing happens if the control is hidden, disabled or covered, or the window takes no input.
  void UserClick(Control& control);
  // A click, and then the second one.
  void UserDblClick(Control& control);
  // The second of two quick clicks: on a button, an option or a check box a click like the first; elsewhere DblClick.
  void UserSecondClick(Control& control);
  // A text box gets the focus, so that its menu can open.
  void UserRightClick(Control& control);
  // The pointer is over the control; nullptr: over the bare window.
  void UserMove(Control* control);
  // A press on the item at that position of the list, from 0; below 0 beside them, which only takes the focus.
  void UserPick(ListBox& list, int index);
  void UserKey(Key key);
  // The menu that opens, where no control has the letter; nullptr for none.
  MenuItem* UserAlt(char letter);
  // A character goes to the focus holder; a text box takes it at the end of its text.
  void UserType(char character);
  // The two halves of that for a box whose text is edited natively: KeyPress, which tells whether the box keeps the
  // focus and takes the character, and the text as it stands after the edit.
  bool UserKeyPress(TextBox& box);
  void UserEdit(TextBox& box, std::string_view text);
  // The close box: Unload runs, and the window goes.
  void UserClose();

 private:
  friend class Control;
  void Enlist(Control& control) { controls_.push_back(&control); }
  void MoveFocus(Control& target);
  bool TakesInput() const;
  bool Reachable(const Control& control) const;
  bool Covered(const Control& control) const;
  void PassFocusOn(Control& control);
  void PassFocusOnIfCovered();
  void GiveFocus(Control& control);
  bool FocusByUser(Control& control);
  Control* NextStop(int tab, int step) const;
  bool IsStop(const Control& control) const;
  void KeyInList(ListBox& list, Key key);
  Control* ByHotKey(char letter) const;

  WindowStack* windows_;
  std::string caption_;
  Colour back_ = Blue;
  bool visible_ = false;
  bool loaded_ = false;
  bool seen_ = false;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  unsigned focus_moves_ = 0;
  int steps_as_one_ = 0;
};

}  // namespace forms
