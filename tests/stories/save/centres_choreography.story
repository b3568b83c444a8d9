# A save centres the choreography again.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtChoreography
see txtChoreography.Alignment left
click mnuSave
see txtChoreography.Alignment centre
