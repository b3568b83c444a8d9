# TV-14 chosen by the mouse in Edit is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click optnoteson
click txtRating
pick List2 "TV-14"
see txtRating "TV-14"
see focus cmdSave
click cmdSave
see film 1 Rating "TV-14"
