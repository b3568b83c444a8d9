# A save centres the price again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtCost
see txtCost.Alignment left
click mnuSave
see txtCost.Alignment centre
