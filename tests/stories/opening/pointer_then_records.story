# With NO for the quick start the pointer brings the record screen up.
remove Fo
file Fo1 "PERHAPS\r\n"
film 1 Title="Solaris"
start opener
click cmdStart
file Fo1 "NO\r\n"
move option1
see file Fo "NO\r\n"
see frmQuickStart.Visible no
see frmPage1.Visible yes
see frmInfo.Visible yes
see focus cmdSave
see txtTitle "Solaris"
