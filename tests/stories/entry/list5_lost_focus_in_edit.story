# In Edit the disc mode list that is left gives the focus to Save.
film 1 Title="Alien" Format="L" CLV1="CAV" Color1="Color"
start
click cmdEdit
click txtCLV1
click txtDirector
see focus cmdSave
see List5.Visible no
see List5.Items
see lblSorting "Save Work When Finished!"
