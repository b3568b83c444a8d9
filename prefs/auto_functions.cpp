// Auto Save and Auto Sort: each is a setting in memory, a one-line file, and a box of the record screen.
#include <string>

#include "screen/auto_texts.h"
#include "screen/frmPage1.h"

namespace {

struct AutoFunction {
  std::string_view Name;
  std::string_view File;
  screen::Text screen::RunState::*Setting;
  std::string_view NoLine;
  forms::TextBox screen::PageControls::*Box;
  std::string_view On, Off;
};

// clang-format off
constexpr AutoFunction AutoSave = {
  .Name = "Auto Save", .File = "AutoSave", .Setting = &screen::RunState::AutoSaveSetting, .NoLine = "NO",
  .Box = &screen::PageControls::txtAutoSave, .On = screen::AutoSaveOn, .Off = screen::AutoSaveOff,
};
constexpr AutoFunction AutoSort = {
  .Name = "Auto Sort", .File = "AutoSort", .Setting = &screen::RunState::AutoSortSetting, .NoLine = "",  // odd on purpose: an empty line
  .Box = &screen::PageControls::txtAutoSort, .On = screen::AutoSortOn, .Off = screen::AutoSortOff,
};
// clang-format on

void Choose(frmPage1& window, const AutoFunction& function) {
  std::string name = "\" " + std::string(function.Name) + "\"";
  window.PromptText = "To activate " + name + " click (Y)  or to remove" + name + " click (N) ";
  bool yes = window.Ask(window.PromptText) == forms::Answer::Yes;
  window.Files.OpenOutput(SettingFileNo, function.File);
  window.*function.Setting = yes ? "YES" : "NO";
  window.Files.WriteLine(SettingFileNo, yes ? "YES" : function.NoLine);
  window.Files.Close(SettingFileNo);
  (window.*function.Box).SetText(yes ? function.On : function.Off);
}

}  // namespace

void frmPage1::mnuAutoSave_Click() { Choose(*this, AutoSave); }
void frmPage1::mnuAutoSort_Click() { Choose(*this, AutoSort); }
