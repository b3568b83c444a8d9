# Alt R resets.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNext
key Alt+R
see txtTitle "Alien"
