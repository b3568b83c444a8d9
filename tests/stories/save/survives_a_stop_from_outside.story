# What was saved is there after a stop from outside.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtDirector
type "Ridley Scott"
click cmdSave
restart
see txtDirector "Ridley Scott"
