# In Edit the genre list that is left gives the focus to Save.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtGenre
click txtDirector
see focus cmdSave
see List1.Visible no
see List1.Items
see lblSorting.Visible yes
see txtCLV1.Visible yes
see txtStar6(1).Visible yes
see txtColor1.Visible yes
see txtLetter.Visible yes
