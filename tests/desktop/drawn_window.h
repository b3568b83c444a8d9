// The small window drawn, and the mouse and key events of a user.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/field_view.h"
#include "desktop/stack_view.h"
#include "tests/kit/small_window.h"

namespace desktop {

class DrawnWindow : public kit::SmallScreen {
 public:
  DrawnWindow() {
    Window.Tag.SetCaption("   The     title  of it ");
    Window.Third.Disable();
    Window.List.Hide();
    Window.List.Add({"DVD", "Laser", "VHS"});
    Window.Show();
    View.Sync();
  }

  StackView View{Windows, [](const std::function<void()>& event) { event(); }};

  FormView& Drawn() { return *View.ViewOf(Window); }
  QWidget& WidgetOf(const forms::Control& control) { return Drawn().ViewOf(control)->Widget(); }
  FieldView& FieldOf(const forms::TextBox& box) { return dynamic_cast<FieldView&>(WidgetOf(box)); }
  QWidget* Focus() { return Drawn().focusWidget(); }

  void Key(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    KeyIn(*Focus(), key, text, modifiers);
  }
  static void KeyIn(QWidget& widget, int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {}) {
    for (QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, modifiers, text);
      QApplication::sendEvent(&widget, &event);
    }
  }
  void Type(const QString& text) {
    for (QChar character : text) Key(character.toUpper().unicode(), character);
  }
  void Mouse(QWidget& widget, QEvent::Type type, QPoint position, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(type, position, widget.mapToGlobal(position), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
  void Click(QWidget& widget) { ClickAt(widget, widget.rect().center()); }
  void ClickAt(QWidget& widget, QPoint position) {
    Mouse(widget, QEvent::MouseButtonPress, position);
    Mouse(widget, QEvent::MouseButtonRelease, position);
  }
};

}  // namespace desktop
