# YES in Fo1 brings the quick start window up beside the record screen.
file Fo1 "YES\r\n"
start
see frmQuickStart.Visible yes
see frmPage1.Visible yes
