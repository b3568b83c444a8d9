// The way from the record screen to the help viewer.
#include "screen/frmPage1.h"

// The contents, whatever topic was set last.
void frmPage1::mnuHelp_Click() { Desk.Help(0); }

void frmPage1::WireHelp() { WIRE(mnuHelp, Click); }
