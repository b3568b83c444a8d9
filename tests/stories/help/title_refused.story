# The mouse on the title of a film in view leaves the topic of Back, although the focus has gone to Save.
film 1 Title="Solaris"
start
click txtTitle
box warning "Title" "Hit edit to change." OK
see frmPage1.HelpContext 260
see focus cmdSave
