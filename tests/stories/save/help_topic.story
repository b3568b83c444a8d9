# Save sets its help topic.
film 1 Title="Alien"
start
click cmdEdit
click txtDirector
see frmPage1.HelpContext 2
click mnuSave
see frmPage1.HelpContext 220
