# An Fo without a line is skipped like a missing one.
file Fo ""
file Fo1 "NO\r\n"
start opener
click cmdStart
see frmInfo.Visible yes
see frmPage1.Visible yes
