# A save centres the fourth star again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar4(1)
see txtStar4(1).Alignment left
click mnuSave
see txtStar4(1).Alignment centre
