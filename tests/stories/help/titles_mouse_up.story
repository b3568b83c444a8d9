# The mouse on the title leaves the topic of Back.
film 1 Title="Solaris"
start
click cmdEdit
click txtTitle
see frmPage1.HelpContext 260
