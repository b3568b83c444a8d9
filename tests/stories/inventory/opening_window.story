# The opening window: its texts, its colours and what the Tab key reaches.
start opener
see frmOpener "Reelora Prima version 4.0"
see Image1.Visible yes
see frmOpener.BackColor 4857360
see cmdStart "&Start"
see cmdStart.ForeColor 0
see cmdStart.BackColor 12632256
see cmdStart.FontSize 11
see cmdExit "E&xit"
see cmdExit.ForeColor 0
see cmdExit.BackColor 12632256
see cmdExit.FontSize 11
see Image1.Visible yes
see frmOpener.HelpContext 0
see focus cmdStart
key Tab
see focus cmdExit
key Tab
see focus cmdStart
see frmOpener.HelpContext 0
