# Any other word in Fo1 does nothing.
file Fo1 "maybe\r\n"
start
see frmQuickStart.Visible no
see frmPage1.Visible yes
