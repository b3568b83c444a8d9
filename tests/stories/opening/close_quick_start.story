# The close box of the quick start is no more than its going.
file Fo1 "YES\r\n"
start opener
click cmdStart
close frmQuickStart
see frmQuickStart.Visible no
see frmPage1.Visible yes
see file Fo1 "YES\r\n"
