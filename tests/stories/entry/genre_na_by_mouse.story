# NA chosen by the mouse shows its name and is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
pick List1 "NA = Nature"
see txtGenre "NA"
see txtGenreList "Nature"
click cmdSave
see film 3 Genre "NA"
