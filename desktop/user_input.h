// Translates what the user does to the widgets of one window into events of its form. The widgets keep only native
// editing: caret, selection, clipboard, undo, input methods, scrolling.
#pragma once

#include <QObject>
#include <unordered_map>

#include "forms/window.h"

class QContextMenuEvent;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace desktop {

class ControlView;
class FieldView;
class FormView;
class StackView;

class UserInput final : public QObject {
 public:
  UserInput(FormView& form, StackView& stack);
  void Watch(ControlView& view);
  // The window itself or its surface.
  void Watch(QWidget& bare);
  bool eventFilter(QObject* watched, QEvent* event) override;
  // Beeps and names the characters that a text box did not take.
  void Refuse(const QString& characters);

 private:
  forms::Window& Window() const;
  // Runs the event, then resets the widget to what the form says.
  void Deliver(ControlView& view, const std::function<void()>& event);
  void WatchSignals(ControlView& view);

  static bool KeepsFromHotKeys(QKeyEvent& key);
  bool KeyPressed(QKeyEvent& key);
  bool KeyInField(FieldView& field, QKeyEvent& key);
  bool Composed(FieldView& field, QInputMethodEvent& event);
  bool AskKeyPress(FieldView& field, const QString& characters);
  void AltPressed(char letter);

  bool MousePressed(ControlView* view, QMouseEvent& mouse);
  bool MouseReleased(ControlView* view, QMouseEvent& mouse);
  bool MouseMoved(ControlView* view, QMouseEvent& mouse);
  bool MouseDoubled(ControlView* view, QMouseEvent& mouse);
  bool ContextMenuAsked(ControlView* view);
  void PickAt(ControlView& view, const QPoint& position);
  void Click(ControlView& view);

  FormView& form_;
  StackView& stack_;
  std::unordered_map<const QObject*, ControlView*> views_;
  ControlView* pressed_ = nullptr;
};

}  // namespace desktop
