# A save centres the fifth star again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar5(1)
see txtStar5(1).Alignment left
click mnuSave
see txtStar5(1).Alignment centre
