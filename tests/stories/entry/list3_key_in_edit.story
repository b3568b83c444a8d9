# In Edit a key closes the format list and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtFormat
key Down
key Enter
see txtFormat "Laser"
see List3.Visible no
see List3.Items
see focus cmdSave
see lblSorting "Save Work When Finished!"
