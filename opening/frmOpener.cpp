// Start follows the flag files; Exit and the close box end the program.
#include "opening/frmOpener.h"

#include "forms/screen.h"

frmOpener::frmOpener(forms::Screen& screen, OpeningRoad& road)
    : Window(screen, "frmOpener", "Reelora Prima version 4.0", 9000, 6000), road_(road) {
  SetBackColor(opening::Evening);
  Unload = [this] { frmOpener_Unload(); };
  WIRE(cmdStart, Click);
  WIRE(cmdExit, Click);
}

// With the features window off and an unknown word for the quick start nothing happens, and this window stays.
void frmOpener::cmdStart_Click() {
  road_.RecordScreen.EditMode = 0;
  road_.RecordScreen.Files.Close(KeyFileNo);
  road_.ReadFoIfThere();
  if (road_.Fo != "NO") {
    road_.frmInfo->Show();
    Hide();
    return;
  }
  road_.ReadFo1();
  road_.GoOnByFo1();
}

void frmOpener::cmdExit_Click() { road_.RecordScreen.Desk.End(); }

void frmOpener::frmOpener_Unload() { road_.RecordScreen.Desk.End(); }
