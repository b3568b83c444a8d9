// The quick start window stands in front of the record screen until it is told not to.
#include "opening/frmQuickStart.h"

#include "runtime/failure.h"

frmQuickStart::frmQuickStart(forms::Screen& screen, OpeningRoad& road)
    : Window(screen, "frmQuickStart", "Reelora Ver 4.0 Quick Start", 9000, 6000), road_(road) {
  SetBackColor(opening::Evening);
  Load = [this] { frmQuickStart_Load(); };
  WIRE(Check1, Click);
  WIRE(cmdContinue, Click);
}

void frmQuickStart::frmQuickStart_Load() {
  try {
    road_.ReadFo1();
  } catch (const runtime::Failure&) {
    road_.RecordScreen.Files.Close(CountFileNo);
    road_.Write(QuickStartFlagFile, "YES");
    return;
  }
  Hide();
  if (road_.Fo1 == "YES") {
    Show();
    road_.RecordScreen.Show();
  } else if (road_.Fo1 != "NO") {
    Show();
    road_.frmInfo->Hide();
  }
}

// The box is not read: a second click says the same.
void frmQuickStart::Check1_Click() { road_.Write(QuickStartFlagFile, "NO"); }

void frmQuickStart::cmdContinue_Click() { road_.ShowRecordScreen(); }
