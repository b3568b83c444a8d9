// A window with a few controls of each kind, and the same on its desk with every event traced.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/window.h"
#include "forms/window_stack.h"
#include "tests/kit/counting_desk.h"

namespace kit {

// clang-format off
struct SmallWindow : forms::Window {
  explicit SmallWindow(forms::WindowStack& windows) : forms::Window(windows, "Small", "A small window", 6000, 4000) {
    First.Tag = &Tag;
  }

  // Declared out of tab order on purpose.
  forms::TextBox      Third   { *this, "Third",  { 3, 30, 33 }, {}, forms::Align::Left,   { 4300, 100, 1500, 300 } };
  forms::TextBox      First   { *this, "First",  { 1, 10, 11 }, {}, forms::Align::Centre, { 100, 100, 2000, 300 } };
  forms::TextBox      Second  { *this, "Second", { 2, 20, 0 },  {}, forms::Align::Centre, { 2200, 100, 2000, 300 } };
  forms::Label        Tag     { *this, "Tag",    "&Tag",    { 4, 0, 0 },  {}, { 100, 400, 2000, 400 } };
  forms::Button       Push    { *this, "Push",   "&Push",   { 5, 50, 0 }, {}, { 100, 1000, 700, 700 }, "save" };
  forms::OptionButton One     { *this, "One",    "PA&GE 1", { 6, 0, 0 },  {}, { 1000, 1000, 900, 300 } };
  forms::OptionButton Two     { *this, "Two",    "PA&GE 2", { 7, 0, 0 },  {}, { 2000, 1000, 900, 300 } };
  forms::CheckBox     Check   { *this, "Check",  "&Check",  { 8, 0, 0 },  {}, { 3000, 1000, 900, 300 } };
  forms::ListBox      List    { *this, "List",   { 9, 0, 0 }, {}, { 100, 2000, 2000, 1000 } };
  forms::Button       Alike   { *this, "Alike",  "Al&pha",  { 10, 0, 0 }, {}, { 4000, 1000, 700, 700 } };
  forms::Strip        Ground  { *this, "Ground", {}, { 0, 3700, 6000, 300 } };
  forms::MenuItem     Menu    { *this, 0, "Menu", "&Menu", 400 };
  forms::MenuItem     Item    { *this, 1, "Item", "&Item" };
  forms::MenuItem     Pull    { *this, 0, "Pull", "Pu&ll", 440 };
};
// clang-format on

// An event of a control is traced as "Control.Event".
struct SmallScreen {
  std::vector<std::string> Trace;
  CountingDesk Desk{Trace};
  forms::WindowStack Windows{Desk};
  SmallWindow Window{Windows};

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

}  // namespace kit
