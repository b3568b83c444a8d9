# A save centres the set direction again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtSetDirection
see txtSetDirection.Alignment left
click mnuSave
see txtSetDirection.Alignment centre
