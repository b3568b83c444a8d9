// The start sequence: its windows, and the two flag files that decide which of them appear before the record screen.
#pragma once

#include <string>
#include <string_view>

#include "screen/frmPage1.h"

// "Fo": NO turns off the features window. "Fo1": YES shows the quick start window, NO turns it off.
inline constexpr std::string_view FeaturesFlagFile = "Fo";
inline constexpr std::string_view QuickStartFlagFile = "Fo1";

// Fo, Fo1: the words last read from the files.
struct OpeningSequence {
  explicit OpeningSequence(frmPage1& record_screen) : RecordScreen(record_screen) {}

  frmPage1& RecordScreen;
  forms::Window* frmOpener = nullptr;
  forms::Window* frmInfo = nullptr;
  forms::Window* frmQuickStart = nullptr;
  std::string Fo, Fo1;

  // If the file cannot be read, Fo keeps its value.
  void ReadFoIfPossible();
  // Throws Failure if the file is missing or empty.
  void ReadFo1();
  // Replaces the file's content with this line.
  void Write(std::string_view file, std::string_view word);
  // By Fo1: YES shows the quick start, NO hides it and shows the record screen, other words do nothing.
  void ContinueByFo1();
  void ShowRecordScreen();
};
