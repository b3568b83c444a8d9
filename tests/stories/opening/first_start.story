# First start: no Fo, Fo1 with YES. Start leads to the features, Continue to the quick start, continue to the
# records.
remove Fo
file Fo1 "YES\r\n"
film 1 Title="Solaris" Format="D"
start opener
see frmOpener "Reelora Prima version 4.0"
see frmOpener.Visible yes
see frmInfo.Visible no
see frmQuickStart.Visible no
see frmPage1.Visible no
click cmdStart
see frmOpener.Visible no
see frmInfo.Visible yes
see frmInfo "Reelora Prima ver 4.0  Features Screen"
see option1 "To  eliminate viewing this s&creen click option  or press Alt \"C\""
click Command1
see frmInfo.Visible no
see frmQuickStart.Visible yes
see frmQuickStart "Reelora Ver 4.0 Quick Start"
see lblQuick1 "Quick Start "
see Check1 "Check here not to see this screen anymore."
see cmdContinue "continue"
click cmdContinue
see frmQuickStart.Visible no
see frmPage1.Visible yes
see txtTitle "Solaris"
see file Fo1 "YES\r\n"
see missing Fo
