# A save centres the first star again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar1(0)
see txtStar1(0).Alignment left
click mnuSave
see txtStar1(0).Alignment centre
