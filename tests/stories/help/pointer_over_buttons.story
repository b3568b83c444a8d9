# The pointer over a button changes the topic that F1 opens, with no click.
film 1 Title="Solaris"
start
move cmdSort
see frmPage1.HelpContext 170
key F1
help 170
move cmdSave
see frmPage1.HelpContext 220
key F1
help 220
move cmdNew
see frmPage1.HelpContext 230
key F1
help 230
move cmdNext
see frmPage1.HelpContext 240
key F1
help 240
move cmdPrevious
see frmPage1.HelpContext 260
key F1
help 260
move cmdEdit
see frmPage1.HelpContext 270
key F1
help 270
move cmdReset
see frmPage1.HelpContext 280
key F1
help 280
move cmdDelete
see frmPage1.HelpContext 300
key F1
help 300
move cmdMatch
see frmPage1.HelpContext 380
key F1
help 380
