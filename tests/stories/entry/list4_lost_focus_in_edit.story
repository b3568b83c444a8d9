# In Edit the aspect list that is left gives the focus to Save.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtLetter
click txtDirector
see focus cmdSave
see List4.Visible no
see List4.Items
see lblSorting "Save Work When Finished!"
