# A save centres the running time again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtTime
see txtTime.Alignment left
click mnuSave
see txtTime.Alignment centre
