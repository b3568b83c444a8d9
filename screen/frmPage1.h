// The record screen: its controls, its run state, its handlers, and the steps that several files share.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "runtime/files.h"
#include "runtime/printer.h"
#include "runtime/text.h"
#include "screen/controls.h"
#include "screen/handlers.h"
#include "screen/run_state.h"

namespace screen {
struct EntryField;
struct PagePair;
}  // namespace screen

// The numbers of the files that the handlers share.
inline constexpr int KeyFileNo = 2;
inline constexpr int CountFileNo = 3;
inline constexpr int ColourFileNo = 4;
inline constexpr int SettingFileNo = 5;

// The title that most message boxes carry.
inline constexpr std::string_view BoxTitle = "Reelora Prima";

struct frmPage1 : screen::PageControls, screen::RunState {
  frmPage1(forms::WindowStack& windows, runtime::Files& files);

  runtime::Files& Files;
  forms::Desk& Desk;
  // Shared: the lines of an unfinished report appear in the next.
  runtime::Printer Printer;
  // The window that Load shows or hides as the flag file "Fo1" says; nullptr if not set.
  forms::Window* frmQuickStart = nullptr;
  // Opens the copy window; not set if there is none.
  forms::Handler OpenCopyWindow;
  // How many times ShowRecord has brought a film to the screen.
  unsigned FilmsShown = 0;

#define DECLARE_WINDOW_HANDLER(Event) void frmPage1_##Event();
  WINDOW_HANDLERS(DECLARE_WINDOW_HANDLER)
  CONTROL_HANDLERS(DECLARE)
#undef DECLARE_WINDOW_HANDLER

  // From CurrentFilm to the boxes, and from the boxes to the disk.
  void ShowRecord();
  void SaveRecord();

  // Start and display.
  void ReadCounts();
  void ShowSavedCounts(std::string_view dvd_lead, std::string_view laser_lead, std::string_view vhs_lead);
  void ShowNewHint();
  void ShowAspect();
  void ClearRecord();
  void ShowPage1();
  void ShowPage2();
  void SetPageVisible(std::span<const screen::PagePair> pairs, bool visible);
  void ApplyStoredColours();

  // Walking key files.
  void ReadKey();
  bool KeyIsBlank() const;
  void ReadKeyPastBlank();
  bool PastLastKey(int key_length);
  std::int16_t CountKeys();
  void TakeScanRecNo();
  bool TakeScanRecNoOrStop();
  // Opens a key file as number 2. Closes one left there by a sort run; any other stops with "File already open".
  void OpenKeyFile(std::string_view name);
  // Makes it the open key file, unless it is that already.
  void ReopenKeyFile(std::string_view name);
  void MatchGenre();
  void WriteListRow(std::int64_t row);

  // Entry.
  void EnterField(const screen::EntryField& field);
  void EnterField(forms::TextBox screen::PageControls::*box);
  void Refuse(std::string_view title);
  void RefuseClick(std::string_view title);
  bool InEdit() const;
  void ShowSaveReminder();
  void StoreFormatLetter();
  void TakeSelected(const forms::ListBox& list, forms::TextBox& box);

  // The sort run.
  void BeginSort();
  void MakePasses();

  // Files and boxes.
  void ReadRecord(std::int64_t record);
  std::string ReadOneItem(int number, std::string_view file);
  forms::Answer Ask(std::string_view question);

  // Last colour chosen or defaulted.
  forms::Colour DialogColour = forms::Black;
  // A sort run has left its last key file open as number 2.
  bool KeyFileLeftBySort = false;
  // The key file that the twenty-row list was opened on; "" before the first list.
  std::string_view ListKeyFile;
  // Last answer to Find By File No.
  std::string FileNoAnswer;
};
