# Features off and an unknown word for the quick start: Start does nothing.
file Fo1 "PERHAPS\r\n"
start opener
click cmdStart
see frmOpener.Visible yes
see frmInfo.Visible no
see frmQuickStart.Visible no
see frmPage1.Visible no
click cmdStart
see frmPage1.Visible no
