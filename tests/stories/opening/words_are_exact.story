# Small letters and a trailing blank make other words of the flags.
file Fo "no\r\n"
file Fo1 "NO \r\n"
start opener
click cmdStart
see frmInfo.Visible yes
see frmPage1.Visible no
see frmQuickStart.Visible no
