# The focus on a button sets its topic.
film 1 Title="Solaris"
start
see focus cmdSave
see frmPage1.HelpContext 220
move frmPage1
key Shift+Tab
see focus cmdDelete
see frmPage1.HelpContext 300
move frmPage1
key Shift+Tab
see focus cmdSort
see frmPage1.HelpContext 170
move frmPage1
key Shift+Tab
see focus cmdNew
see frmPage1.HelpContext 230
move frmPage1
key Shift+Tab
see focus cmdReset
see frmPage1.HelpContext 280

move frmPage1
key F1
help 150
