# A save centres the sixth star again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar6(1)
see txtStar6(1).Alignment left
click mnuSave
see txtStar6(1).Alignment centre
