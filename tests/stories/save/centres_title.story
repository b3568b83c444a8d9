# A save centres the title again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtTitle
see txtTitle.Alignment left
click mnuSave
see txtTitle.Alignment centre
