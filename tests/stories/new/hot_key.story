# Alt W starts a new film.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
key Alt+W
see state NewMode 1
see focus txtTitle
