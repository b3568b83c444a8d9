# In Edit the format list that is left gives the focus to Save, wherever the user was going.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtFormat
click txtDirector
see focus cmdSave
see List3.Visible no
see List3.Items
see lblSorting "Save Work When Finished!"
