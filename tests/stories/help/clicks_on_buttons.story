# A click on a button sets its topic.
film 1 Title="Solaris"
film 2 Title="Stalker"
sorted
start
click cmdNext
see frmPage1.HelpContext 240
click cmdPrevious
see frmPage1.HelpContext 260
click cmdEdit
see frmPage1.HelpContext 270
click cmdSave
see frmPage1.HelpContext 220
click cmdMatch
see frmPage1.HelpContext 380
click cmdReset
key F1
help 220
