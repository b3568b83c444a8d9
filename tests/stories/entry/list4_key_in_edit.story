# In Edit a key closes the aspect list, and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtLetter
key Down
key z
see txtLetter "Pan & Scan"
see List4.Visible no
see List4.Items
see focus cmdSave
see lblSorting "Save Work When Finished!"
