// The quick start window: shown in front of the record screen until the user turns it off.
#include "opening/frmQuickStart.h"

#include "runtime/failure.h"

frmQuickStart::frmQuickStart(forms::WindowStack& windows, OpeningSequence& sequence)
    : Window(windows, "frmQuickStart", "Reelora Ver 4.0 Quick Start", 9000, 6000), sequence_(sequence) {
  SetBackColor(opening::Evening);
  Load = [this] { frmQuickStart_Load(); };
  WIRE(Check1, Click);
  WIRE(cmdContinue, Click);
}

void frmQuickStart::frmQuickStart_Load() {
  try {
    sequence_.ReadFo1();
  } catch (const runtime::Failure&) {
    sequence_.RecordScreen.Files.Close(CountFileNo);
    sequence_.Write(QuickStartFlagFile, "YES");
    return;
  }
  Hide();
  if (sequence_.Fo1 == "YES") {
    Show();
    sequence_.RecordScreen.Show();
  } else if (sequence_.Fo1 != "NO") {
    Show();
    sequence_.frmInfo->Hide();
  }
}

// Every click writes NO, also the one that clears the box.
void frmQuickStart::Check1_Click() { sequence_.Write(QuickStartFlagFile, "NO"); }

void frmQuickStart::cmdContinue_Click() { sequence_.ShowRecordScreen(); }
