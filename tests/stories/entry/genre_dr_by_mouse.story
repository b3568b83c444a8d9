# DR chosen by the mouse shows its name and is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
pick List1 "DR = Drama"
see txtGenre "DR"
see txtGenreList "Drama"
click cmdSave
see film 3 Genre "DR"
