# In Edit the genre opens its list with the reminder to save.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtGenre
see focus List1
see List1.Visible yes
see txtGenre "AA"
see lblSelect.Visible yes
see lblSorting "Save Work When Finished!"
see txtCLV1.Visible no
see txtStar6(1).Visible no
see txtColor1.Visible no
see txtLetter.Visible no
