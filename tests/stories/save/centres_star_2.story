# A save centres the second star again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtStar2(1)
see txtStar2(1).Alignment left
click mnuSave
see txtStar2(1).Alignment centre
