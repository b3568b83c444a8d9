# Both off: Start leads to the record screen at once; the opening window stays behind.
film 1 Title="Solaris"
start opener
click cmdStart
see frmPage1.Visible yes
see frmQuickStart.Visible no
see frmInfo.Visible no
see frmOpener.Visible yes
see txtTitle "Solaris"
see focus cmdSave
