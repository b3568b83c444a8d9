# TV-Y7 chosen by the mouse in Edit is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRating
pick List2 "TV-Y7"
see txtRating "TV-Y7"
see focus cmdSave
click cmdSave
see film 1 Rating "TV-Y7"
