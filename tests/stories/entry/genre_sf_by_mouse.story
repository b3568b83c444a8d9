# SF chosen by the mouse shows its name and is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdNew
click txtGenre
pick List1 "SF = Science Fiction"
see txtGenre "SF"
see txtGenreList "Science Fiction"
click cmdSave
see film 3 Genre "SF"
