// Opens the copy window and the help viewer.
#include "forms/desk.h"
#include "screen/frmPage1.h"

namespace {
constexpr int HelpContents = 0;
}

// The master file is closed for as long as the copy window is up.
void frmPage1::mnuCopy_Click() {
  Files.Close(static_cast<int>(MasterFileNo));
  forms::Run(OpenCopyWindow);
}

// The contents, whatever topic was set last.
void frmPage1::mnuHelp_Click() { Desk.Help(HelpContents); }
