# Alt E opens the film.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
key Alt+E
see state EditMode 1
see focus cmdEdit
