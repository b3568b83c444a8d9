// Leaving the program by the close box or Exit.
#include "screen/closing.h"

#include "screen/frmPage1.h"

using screen::UnsavedQuestion;

void frmPage1::frmPage1_Unload() {
  if (EditMode == 1) {
    if (Ask(UnsavedQuestion) == forms::Answer::Yes) SaveRecord();
    Desk.End();
  } else if (EditMode == 0) {
    Desk.End();
  }
}

void frmPage1::mnuExit_Click() {
  if (EditMode == 1) {
    if (Ask(UnsavedQuestion) == forms::Answer::Yes) {
      SaveRecord();
    } else {
      EditMode = 0;
      Desk.End();
      return;
    }
  }
  if (Ask("Are you sure you want to quit?") == forms::Answer::Yes) Desk.End();
}
