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
constexpr AutoFunction AutoSave = { "Auto Save", "AutoSave", &screen::RunState::AutoSaveSetting, "NO", &screen::PageControls::txtAutoSave, screen::AutoSaveOn, screen::AutoSaveOff };
constexpr AutoFunction AutoSort = { "Auto Sort", "AutoSort", &screen::RunState::AutoSortSetting, "",   &screen::PageControls::txtAutoSort, screen::AutoSortOn, screen::AutoSortOff };  // No leaves an empty line
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
