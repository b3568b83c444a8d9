# The record screen closed with a scratch value leaves the opening window, and Start brings it back as it was.
film 49 Title="Brazil" Format="V"
sorted
start opener
click cmdStart
click mnuByTitle
see state EditMode 46
see txtFormat "V"
click mnuByTitle
see txtFormat "V"
close frmPage1
see frmOpener.Visible yes
click cmdStart
see state EditMode 0
see frmPage1.Visible yes
see txtTitle "Brazil"
