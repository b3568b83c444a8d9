// Leaving the features window.
#include "opening/frmInfo.h"

#include "forms/window_stack.h"

frmInfo::frmInfo(forms::WindowStack& windows, OpeningSequence& sequence)
    : Window(windows, "frmInfo", "Reelora Prima ver 4.0  Features Screen", 9000, 6600), sequence_(sequence) {
  SetBackColor(opening::Evening);
  Load = [this] { frmInfo_Load(); };
  Unload = [this] { frmInfo_Unload(); };
  WIRE(Command1, Click);
  WIRE(option1, MouseMove);
}

// Opens the next window behind this one.
void frmInfo::frmInfo_Load() {
  sequence_.ReadFoIfPossible();
  sequence_.ReadFo1();
  sequence_.ContinueByFo1();
}

void frmInfo::frmInfo_Unload() { sequence_.RecordScreen.Desk.End(); }

// With NO this window stays open behind the record screen.
void frmInfo::Command1_Click() {
  sequence_.ReadFo1();
  if (sequence_.Fo1 == "NO") {
    sequence_.ShowRecordScreen();
    return;
  }
  sequence_.frmQuickStart->Show();
  Hide();
}

// Moving the pointer over the option is enough: the window is not shown at later starts.
void frmInfo::option1_MouseMove() {
  sequence_.Write(FeaturesFlagFile, "NO");
  sequence_.ReadFo1();
  sequence_.ContinueByFo1();
}
