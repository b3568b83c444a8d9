# Save from the menu hides the list that has the focus; what it had put into the box is saved.
film 1 Title="Alien" Format="D" Letter="P"
film 2 Title="Brazil" Format="D"
start
click cmdEdit
click txtLetter
see focus List4
click mnuSave
see List4.Visible no
see List4.Items
see focus cmdSave
see film 1 Letter "W"
see txtLetter "Wide Screen"
see state EditMode 0
see lblSorting.Visible no
