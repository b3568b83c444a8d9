# FM chosen by the mouse shows its name and is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
pick List1 "FM = Family"
see txtGenre "FM"
see txtGenreList "Family"
click cmdSave
see film 3 Genre "FM"
