# The check box turns the quick start off; the box itself is not read, so a second click says the same.
file Fo1 "YES\r\n"
start opener
click cmdStart
click Check1
see Check1.Value yes
see file Fo1 "NO\r\n"
see frmQuickStart.Visible yes
file Fo1 "YES\r\n"
click Check1
see Check1.Value no
see file Fo1 "NO\r\n"
click cmdContinue
restart
see frmQuickStart.Visible no
see frmPage1.Visible yes
