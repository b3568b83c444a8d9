# A save leaves the cassette number at the left and the genre centred.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click cmdSave
see txtCassNo.Alignment left
see txtGenre.Alignment centre
see txtGenreList.Alignment centre
