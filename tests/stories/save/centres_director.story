# A save centres the director again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtDirector
see txtDirector.Alignment left
click mnuSave
see txtDirector.Alignment centre
