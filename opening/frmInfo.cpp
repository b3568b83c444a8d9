// The ways on from the features window.
#include "opening/frmInfo.h"

#include "forms/screen.h"

frmInfo::frmInfo(forms::Screen& screen, OpeningRoad& road)
    : Window(screen, "frmInfo", "Reelora Prima ver 4.0  Features Screen", 9000, 6600), road_(road) {
  SetBackColor(opening::Evening);
  Load = [this] { frmInfo_Load(); };
  Unload = [this] { frmInfo_Unload(); };
  WIRE(Command1, Click);
  WIRE(option1, MouseMove);
}

// The windows that come next are made ready behind this one.
void frmInfo::frmInfo_Load() {
  road_.ReadFoIfThere();
  road_.ReadFo1();
  road_.GoOnByFo1();
}

void frmInfo::frmInfo_Unload() { road_.RecordScreen.Desk.End(); }

// With NO this window stays behind the record screen.
void frmInfo::Command1_Click() {
  road_.ReadFo1();
  if (road_.Fo1 == "NO") {
    road_.ShowRecordScreen();
    return;
  }
  road_.frmQuickStart->Show();
  Hide();
}

// The pointer passing over the option is enough: the window never comes again.
void frmInfo::option1_MouseMove() {
  road_.Write(FeaturesFlagFile, "NO");
  road_.ReadFo1();
  road_.GoOnByFo1();
}
