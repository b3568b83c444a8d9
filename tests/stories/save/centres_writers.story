# A save centres the writers again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtWritten
see txtWritten.Alignment left
click mnuSave
see txtWritten.Alignment centre
