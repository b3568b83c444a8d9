# While the copy window is up the record screen takes no input: its buttons, keys and pointer do nothing.
drive a floppy
film 1 Title="Solaris"
film 2 Title="Stalker"
start
click mnuCopy
see focus File1
click cmdNext
click txtTitle
click mnuAutoSave
move cmdNext
see txtTitle "Solaris"
see frmPage1.HelpContext 220
close frmPage1
see frmPage1.Visible yes
close frmCopy
click cmdNext
see txtTitle "Stalker"
