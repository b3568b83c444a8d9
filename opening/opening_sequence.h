// The road from the opening window to the record screen: the two flag files that tell which windows stand on it, and
// the windows themselves.
#pragma once

#include <string>
#include <string_view>

#include "screen/frmPage1.h"

// "Fo": NO, the features window is not to be shown any more. "Fo1": YES or NO, the quick start window is, or is not, to
// be shown.
inline constexpr std::string_view FeaturesFlagFile = "Fo";
inline constexpr std::string_view QuickStartFlagFile = "Fo1";

// Fo, Fo1: what was read from the files last.
struct OpeningSequence {
  explicit OpeningSequence(frmPage1& record_screen) : RecordScreen(record_screen) {}

  frmPage1& RecordScreen;
  forms::Window* frmOpener = nullptr;
  forms::Window* frmInfo = nullptr;
  forms::Window* frmQuickStart = nullptr;
  std::string Fo, Fo1;

  // A file that cannot be read leaves the word as it was.
  void ReadFoIfThere();
  // Fails where the file is missing or empty.
  void ReadFo1();
  // Replaces the file by the one line.
  void Write(std::string_view file, std::string_view word);
  // By Fo1: YES shows the quick start, NO hides it and shows the record screen, anything else does nothing.
  void GoOnByFo1();
  void ShowRecordScreen();
};
