// Reads and writes the flag files, and opens the next window by them.
#include "opening/opening_sequence.h"

#include "runtime/failure.h"

void OpeningSequence::ReadFoIfPossible() {
  try {
    Fo = RecordScreen.ReadOneItem(CountFileNo, FeaturesFlagFile);
  } catch (const runtime::Failure&) {
    RecordScreen.Files.Close(CountFileNo);
  }
}

void OpeningSequence::ReadFo1() { Fo1 = RecordScreen.ReadOneItem(CountFileNo, QuickStartFlagFile); }

void OpeningSequence::Write(std::string_view file, std::string_view word) {
  RecordScreen.Files.OpenOutput(CountFileNo, file);
  RecordScreen.Files.WriteLine(CountFileNo, word);
  RecordScreen.Files.Close(CountFileNo);
}

void OpeningSequence::ContinueByFo1() {
  if (Fo1 == "YES") frmQuickStart->Show();
  if (Fo1 == "NO") ShowRecordScreen();
}

void OpeningSequence::ShowRecordScreen() {
  frmQuickStart->Hide();
  RecordScreen.Show();
}
