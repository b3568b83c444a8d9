// The ways from the record screen to the copy window and to the help viewer.
#include "forms/desk.h"
#include "screen/frmPage1.h"

// The master file is closed for as long as the copy window is up.
void frmPage1::mnuCopy_Click() {
  Files.Close(static_cast<int>(MasterFileNo));
  forms::Run(OpenCopyWindow);
}

// The contents, whatever topic was set last.
void frmPage1::mnuHelp_Click() { Desk.Help(0); }
