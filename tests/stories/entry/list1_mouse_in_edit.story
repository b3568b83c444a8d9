# In Edit a press on a genre takes it, and Save gets the focus.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtGenre
pick List1 "SF = Science Fiction"
see txtGenre "SF"
see txtGenreList "Science Fiction"
see List1.Visible no
see lblSelect.Visible no
see focus cmdSave
see txtCLV1.Visible yes
see txtStar6(1).Visible yes
see txtColor1.Visible yes
see txtLetter.Visible yes
