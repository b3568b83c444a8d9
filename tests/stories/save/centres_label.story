# A save centres the label again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtLabel
see txtLabel.Alignment left
click mnuSave
see txtLabel.Alignment centre
