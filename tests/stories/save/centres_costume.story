# A save centres the costume designer again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtCostume
see txtCostume.Alignment left
click mnuSave
see txtCostume.Alignment centre
