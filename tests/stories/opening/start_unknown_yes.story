# Features on and quick start on: the features show, the opening window goes.
file Fo "YES\r\n"
file Fo1 "YES\r\n"
start opener
click cmdStart
see frmInfo.Visible yes
see frmOpener.Visible no
see frmQuickStart.Visible yes
see frmPage1.Visible yes
see focus Command1
