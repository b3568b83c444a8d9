# Any other word than NO in Fo shows the features, with the record screen made ready behind them.
file Fo "PERHAPS\r\n"
film 1 Title="Solaris"
start opener
click cmdStart
see frmInfo.Visible yes
see frmOpener.Visible no
see frmQuickStart.Visible no
see frmPage1.Visible yes
click Command1
see frmPage1.Visible yes
see frmInfo.Visible yes
see focus cmdSave
see txtTitle "Solaris"
