# A save centres the own rating again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRatings
see txtRatings.Alignment left
click mnuSave
see txtRatings.Alignment centre
