# NC-17 chosen by the mouse in Edit is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRating
pick List2 "NC-17"
see txtRating "NC-17"
see focus cmdSave
click cmdSave
see film 1 Rating "NC-17"
