// A window of a few controls whose handlers are traced.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/window.h"
#include "forms/window_stack.h"

// Records requests; answers OK, No, nothing or Cancel.
class CountingDesk final : public forms::Desk {
 public:
  std::vector<std::string>& Trace;
  explicit CountingDesk(std::vector<std::string>& trace) : Trace(trace) {}

  std::string InputBox(std::string_view, std::string_view) override { return ""; }
  void Beep() override { Trace.emplace_back("beep"); }
  std::optional<std::uint32_t> ColourDialog(std::uint32_t) override { return std::nullopt; }
  void PrinterDialog() override {}
  void Print(const runtime::PrintJob&) override {}
  void Help(int topic) override { Trace.push_back("help " + std::to_string(topic)); }
  std::chrono::local_seconds Now() override { return {}; }
  std::string DriveLetters() override { return ""; }
  std::optional<std::string> DriveFolder(char) override { return std::nullopt; }
  void Repaint() override {}
  void RepaintNow() override {}
  void Closed() override {}
  void FailureReport(const runtime::Failure&) override {}

 protected:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view text, forms::Buttons buttons) override {
    Trace.push_back("box " + std::string(text));
    return buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::No;
  }
};

// clang-format off
struct SmallWindow : forms::Window {
  using forms::Window::Window;

  // Declared out of tab order on purpose.
  forms::TextBox      Third   { *this, "Third",   { 3, 30, 33 }, {}, forms::Align::Left, {} };
  forms::TextBox      First   { *this, "First",   { 1, 10, 11 }, {}, forms::Align::Left, {} };
  forms::TextBox      Second  { *this, "Second",  { 2, 20, 0 },  {}, forms::Align::Left, {} };
  forms::Label        Tag     { *this, "Tag",     "&Tag", { 4, 0, 0 }, {}, {} };
  forms::Button       Push    { *this, "Push",    "&Push", { 5, 50, 0 }, {}, {} };
  forms::OptionButton One     { *this, "One",     "PA&GE 1", { 6, 0, 0 }, {}, {} };
  forms::OptionButton Two     { *this, "Two",     "PA&GE 2", { 7, 0, 0 }, {}, {} };
  forms::CheckBox     Check   { *this, "Check",   "&Check", { 8, 0, 0 }, {}, {} };
  forms::ListBox      List    { *this, "List",    { 9, 0, 0 }, {}, {} };
  forms::Button       Alike   { *this, "Alike",   "Al&pha", { 10, 0, 0 }, {}, {} };
  forms::Strip        Ground  { *this, "Ground",  {}, {} };
  forms::MenuItem     Menu    { *this, 0, "Menu", "&Menu" };
  forms::MenuItem     Item    { *this, 1, "Item", "&Item" };
  forms::MenuItem     Pull    { *this, 0, "Pull", "Pu&ll" };
};
// clang-format on

// The window on its desk, with every event of every control traced as "Control.Event".
struct SmallScreen {
  std::vector<std::string> Trace;
  CountingDesk Desk{Trace};
  forms::WindowStack Windows{Desk};
  SmallWindow Window{Windows, "Window", "A window", 100, 100};

  SmallScreen() {
    for (forms::Control* control : Window.Controls()) {
      TraceEvent(*control, control->Click, "Click");
      TraceEvent(*control, control->DblClick, "DblClick");
      TraceEvent(*control, control->GotFocus, "GotFocus");
      TraceEvent(*control, control->LostFocus, "LostFocus");
      TraceEvent(*control, control->MouseUp, "MouseUp");
      TraceEvent(*control, control->MouseMove, "MouseMove");
      TraceEvent(*control, control->MouseDown, "MouseDown");
      TraceEvent(*control, control->KeyPress, "KeyPress");
      TraceEvent(*control, control->Change, "Change");
    }
    Window.MouseMove = [this] { Trace.emplace_back("Window.MouseMove"); };
    Window.Load = [this] { Trace.emplace_back("Window.Load"); };
    Window.Unload = [this] { Trace.emplace_back("Window.Unload"); };
  }

  // The events since the last call.
  std::vector<std::string> Taken() { return std::exchange(Trace, {}); }
  // Shows the window with the focus in that control and an empty trace.
  void ShowWithFocus(forms::Control& holder) {
    Window.Show();
    holder.SetFocus();
    Trace.clear();
  }

 private:
  void TraceEvent(const forms::Control& control, forms::Handler& handler, std::string_view event) {
    handler = [this, text = control.Name + "." + std::string(event)] { Trace.push_back(text); };
  }
};
