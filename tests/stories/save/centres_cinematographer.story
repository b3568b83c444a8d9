# A save centres the cinematographer again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtCinematographer
see txtCinematographer.Alignment left
click mnuSave
see txtCinematographer.Alignment centre
