# The Help menu opens the contents, whatever was set before.
start
move cmdSort
see frmPage1.HelpContext 170
click mnuHelp
help contents
key Alt+H
help contents
