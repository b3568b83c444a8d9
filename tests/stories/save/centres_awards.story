# A save centres the awards again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtAwards
see txtAwards.Alignment left
click mnuSave
see txtAwards.Alignment centre
