# Features on and an unknown word for the quick start: Continue shows the quick start nonetheless.
remove Fo
file Fo1 "PERHAPS\r\n"
start opener
click cmdStart
see frmInfo.Visible yes
see frmQuickStart.Visible no
see frmPage1.Visible no
click Command1
see frmQuickStart.Visible yes
see frmInfo.Visible no
see frmPage1.Visible no
click cmdContinue
see frmQuickStart.Visible no
