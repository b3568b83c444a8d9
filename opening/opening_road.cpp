// Reading and writing the flag files, and the step that most of the windows take by them.
#include "opening/opening_road.h"

#include "runtime/failure.h"

void OpeningRoad::ReadFoIfThere() {
  try {
    Fo = RecordScreen.ReadOneItem(CountFileNo, FeaturesFlagFile);
  } catch (const runtime::Failure&) {
    RecordScreen.Files.Close(CountFileNo);
  }
}

void OpeningRoad::ReadFo1() { Fo1 = RecordScreen.ReadOneItem(CountFileNo, QuickStartFlagFile); }

void OpeningRoad::Write(std::string_view file, std::string_view word) {
  RecordScreen.Files.OpenOutput(CountFileNo, file);
  RecordScreen.Files.WriteLine(CountFileNo, word);
  RecordScreen.Files.Close(CountFileNo);
}

void OpeningRoad::GoOnByFo1() {
  if (Fo1 == "YES") frmQuickStart->Show();
  if (Fo1 == "NO") ShowRecordScreen();
}

void OpeningRoad::ShowRecordScreen() {
  frmQuickStart->Hide();
  RecordScreen.Show();
}
