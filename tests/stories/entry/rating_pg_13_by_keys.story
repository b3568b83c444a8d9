# PG-13 chosen with the arrow keys is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click optnoteson
click txtRating
key Down
key Down
key Enter
see txtRating "PG-13"
see focus txtPackage
key Alt+S
see film 3 Rating "PG-13"
