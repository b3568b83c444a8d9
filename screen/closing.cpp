// Leaving the program by the close box or Exit.
#include "screen/frmPage1.h"

namespace {
constexpr std::string_view UnsavedQuestion =
    "You have not saved your work. To save your work hit Yes, else hit No and quit";
}

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
