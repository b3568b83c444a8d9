# On a twenty-row list Edit does nothing but set its help topic.
films 1 22 Title="Film ##" Format="V"
sorted
start
click mnuAllVHS
see state ListState 2
click cmdEdit
see state EditMode 0
see frmPage1.HelpContext 270
see cmdNew.Enabled yes
see lblHead.Visible yes
