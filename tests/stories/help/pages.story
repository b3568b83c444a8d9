# The bare window stands for its page.
film 1 Title="Solaris"
start
move frmPage1
see frmPage1.HelpContext 150
click optnoteson
move frmPage1
see frmPage1.HelpContext 180
key F1
help 180
click optNotesoff
move frmPage1
key F1
help 150
