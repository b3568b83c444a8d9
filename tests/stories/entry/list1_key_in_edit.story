# In Edit a key closes the genre list and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtGenre
key x
see txtGenre "AA"
see List1.Visible no
see List1.Items
see focus cmdSave
see lblSelect.Visible no
see lblSorting "Save Work When Finished!"
see txtCLV1.Visible yes
see txtStar6(1).Visible yes
see txtColor1.Visible yes
see txtLetter.Visible yes
