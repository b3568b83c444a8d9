# Features off, quick start on: Start leads to the quick start, with the record screen behind it.
file Fo1 "YES\r\n"
start opener
click cmdStart
see frmQuickStart.Visible yes
see frmPage1.Visible yes
see frmInfo.Visible no
see frmOpener.Visible yes
see focus cmdContinue
key Enter
see frmQuickStart.Visible no
see focus cmdSave
