# What Edit shows: the film opened, the ways out of it shut but for Save and Reset.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click cmdSave
see lblSave.Visible yes
click cmdEdit
see lblSave.Visible no
see lblHead.Visible no
see lblNotes1.Visible no
see state EditMode 1
see state NewMode 0
see state ClearOnShow 0
see cmdNext.Enabled no
see cmdPrevious.Enabled no
see cmdDelete.Enabled no
see cmdSave.Enabled yes
see mnuSave.Enabled yes
see lblSorting.Visible yes
see lblSorting "\r\n\r\n          Save Work When Finished!"
see txtTitle "Alien"
see focus cmdEdit
