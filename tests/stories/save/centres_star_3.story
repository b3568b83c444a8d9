# A save centres the third star again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar3(1)
see txtStar3(1).Alignment left
click mnuSave
see txtStar3(1).Alignment centre
