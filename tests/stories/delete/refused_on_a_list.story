# On a twenty-row list Delete does nothing but set its help topic.
films 1 22 Title="Film ##" Format="V"
sorted
start
click mnuAllVHS
click cmdDelete
see frmPage1.HelpContext 300
see state EditMode 0
see focus cmdDelete
see film 22 Title "Film 22"
see film 20 Title "Film 20"
see film 1 Title "Film 01"
