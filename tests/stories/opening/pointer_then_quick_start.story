# With YES for the quick start the pointer brings it up.
remove Fo
file Fo1 "PERHAPS\r\n"
start opener
click cmdStart
file Fo1 "YES\r\n"
move option1
see file Fo "NO\r\n"
see frmQuickStart.Visible yes
see frmPage1.Visible yes
see frmInfo.Visible yes
see focus cmdContinue
