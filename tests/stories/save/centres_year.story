# A save centres the year again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtYear
see txtYear.Alignment left
click mnuSave
see txtYear.Alignment centre
