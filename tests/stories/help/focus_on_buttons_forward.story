# The focus sets the topic of the buttons after Save, too.
film 1 Title="Solaris"
film 2 Title="Stalker"
start
move frmPage1
key Tab
see focus cmdEdit
see frmPage1.HelpContext 270
move frmPage1
key Tab
see focus cmdMatch
see frmPage1.HelpContext 380
move frmPage1
key Tab
see focus cmdPrevious
see frmPage1.HelpContext 260
move frmPage1
key Tab
see focus cmdNext
see frmPage1.HelpContext 240
