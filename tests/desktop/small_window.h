// A small drawn window, and the mouse and key events of a user.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <string>
#include <vector>

#include "desktop/field_view.h"
#include "desktop/stack_view.h"
#include "forms/desk.h"
#include "forms/window.h"
#include "forms/window_stack.h"
#include "runtime/print_job.h"

namespace desktop {

// Answers every box at once and records requests.
class CountingDesk final : public forms::Desk {
 public:
  int Beeps = 0;
  std::vector<int> HelpTopics;

  std::string InputBox(std::string_view, std::string_view) override { return {}; }
  void Beep() override { ++Beeps; }
  std::optional<std::uint32_t> ColourDialog(std::uint32_t) override { return std::nullopt; }
  void PrinterDialog() override {}
  void Print(const runtime::PrintJob&) override {}
  void Help(int topic) override { HelpTopics.push_back(topic); }
  std::chrono::local_seconds Now() override { return {}; }
  std::string DriveLetters() override { return "ac"; }
  std::optional<std::string> DriveFolder(char) override { return std::nullopt; }
  void Repaint() override {}
  void RepaintNow() override {}
  void Closed() override {}
  void FailureReport(const runtime::Failure&) override {}

 protected:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons) override {
    return forms::Answer::Ok;
  }
};

struct SmallForm : forms::Window {
  explicit SmallForm(forms::WindowStack& windows) : forms::Window(windows, "Small", "Small", 6000, 4000) {
    Title.Tag = &TitleTag;
    List.Hide();
    Closed.Disable();
    List.Add({"DVD", "Laser", "VHS"});
  }

  forms::TextBox Title{*this, "Title", {0, 0, 1}, {}, forms::Align::Centre, {100, 100, 2000, 300}};
  forms::TextBox Star{*this, "Star", {1, 0, 3}, {}, forms::Align::Centre, {2200, 100, 2000, 300}};
  forms::TextBox Closed{*this, "Closed", {2, 0, 0}, {}, forms::Align::Left, {4300, 100, 1500, 300}};
  forms::Label TitleTag{*this, "TitleTag", "   The     title  of it ", {}, {}, {100, 400, 2000, 400}};
  forms::Button Save{*this, "Save", "&Save", {3, 220, 0}, {}, {100, 1000, 700, 700}, "save"};
  forms::OptionButton One{*this, "One", "&One", {4, 0, 0}, {}, {1000, 1000, 900, 300}};
  forms::OptionButton Two{*this, "Two", "&Two", {5, 0, 0}, {}, {2000, 1000, 900, 300}};
  forms::ListBox List{*this, "List", {6, 0, 0}, {}, {100, 2000, 2000, 1000}};
  forms::MenuItem File{*this, 0, "File", "&File", 400};
  forms::MenuItem Exit{*this, 1, "Exit", "E&xit"};
  forms::MenuItem Sort{*this, 0, "Sort", "So&rt", 440};
};

class DrawnWindow {
 public:
  DrawnWindow() {
    Form.Show();
    View.Sync();
  }

  CountingDesk Desk;
  forms::WindowStack Windows{Desk};
  SmallForm Form{Windows};
  StackView View{Windows, [](const std::function<void()>& event) { event(); }};

  FormView& Drawn() { return *View.ViewOf(Form); }
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
