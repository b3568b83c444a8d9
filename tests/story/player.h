// Who plays a story's actions on a running program: on the bare forms, or on the drawn widgets. A player only acts;
// what came of it is read from the program, its desk and its folder.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/program.h"

namespace story {

// Thrown by a player for a line that cannot be played: an unknown control, window, key or item.
struct Unplayable {
  std::string What;
};

// Names and texts are in the system's code page. Each call returns when the program is idle again. A control that is
// hidden or disabled, and a program that has ended, stay as they are.
class Player {
 public:
  virtual ~Player() = default;

  // A control or a menu item; "Text1(7)" for an element of a control array.
  virtual void Click(const std::string& name) = 0;
  virtual void DblClick(const std::string& name) = 0;
  // A control; a window's name for the bare window.
  virtual void Move(const std::string& name) = 0;
  // Press and release on the item of that text; Unplayable where a list that is up has no such item.
  virtual void Pick(const std::string& list, const std::string& item) = 0;
  // To the window in front: "Tab" "Shift+Tab" "Enter" "Esc" "Space" "Up" "Down" "Home" "End" "F1" "Alt+X", or one
  // character.
  virtual void Key(const std::string& key) = 0;
  // To the focus holder of the window in front, one character after the other; a text box takes them at the end of its
  // text.
  virtual void Type(const std::string& text) = 0;
  // Empties the text box that has the focus; nothing on anything else.
  virtual void Clear() = 0;
  // The close box; "" for the window in front.
  virtual void Close(const std::string& window) = 0;
  // Called once the program has been started: what is drawn is brought up to date. Nothing on the bare forms.
  virtual void Settle() {}
  // Saves the window in front as a PNG file of that path. Nothing on the bare forms.
  virtual void Picture(const std::string& path) { static_cast<void>(path); }
  // The same of a printed page, from 0.
  virtual void PagePicture(const runtime::PrintJob& job, std::size_t page, const std::string& path) {
    static_cast<void>(job), static_cast<void>(page), static_cast<void>(path);
  }
  // The same of the help viewer at a topic of the help file in that folder.
  virtual void HelpPicture(const std::string& folder, int topic, const std::string& path) {
    static_cast<void>(folder), static_cast<void>(topic), static_cast<void>(path);
  }
  // The same of the report of a failure.
  virtual void FailurePicture(const runtime::Failure& failure, const std::string& path) {
    static_cast<void>(failure), static_cast<void>(path);
  }
  // The same of the window in front with a notice below it; buttons: captions with a bar in between, "" for none.
  virtual void NoticePicture(const std::string& text, const std::string& buttons, const std::string& path) {
    static_cast<void>(text), static_cast<void>(buttons), static_cast<void>(path);
  }
  // The same with the progress of long work, in percent.
  virtual void WorkPicture(const std::string& work, int percent, const std::string& path) {
    static_cast<void>(work), static_cast<void>(percent), static_cast<void>(path);
  }
};

// Called after the program is made and before it is started; the player goes before the program does.
using PlayerFactory = std::function<std::unique_ptr<Player>(Program&)>;

}  // namespace story
