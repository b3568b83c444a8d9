// Start acts by the flag files; Exit and the close box end the program.
#include "opening/frmOpener.h"

#include "forms/window_stack.h"

frmOpener::frmOpener(forms::WindowStack& windows, OpeningSequence& sequence)
    : Window(windows, "frmOpener", "Reelora Prima version 4.0", 9000, 6000), sequence_(sequence) {
  SetBackColor(opening::Evening);
  Unload = [this] { frmOpener_Unload(); };
  WIRE(cmdStart, Click);
  WIRE(cmdExit, Click);
}

// With Fo NO and an unknown word in Fo1 nothing happens; this window stays.
void frmOpener::cmdStart_Click() {
  sequence_.RecordScreen.EditMode = 0;
  sequence_.RecordScreen.Files.Close(KeyFileNo);
  sequence_.ReadFoIfPossible();
  if (sequence_.Fo != "NO") {
    sequence_.frmInfo->Show();
    Hide();
    return;
  }
  sequence_.ReadFo1();
  sequence_.ContinueByFo1();
}

void frmOpener::cmdExit_Click() { sequence_.RecordScreen.Desk.End(); }

void frmOpener::frmOpener_Unload() { sequence_.RecordScreen.Desk.End(); }
