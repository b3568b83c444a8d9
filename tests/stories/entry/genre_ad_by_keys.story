# AD chosen with the arrow keys shows its name and is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
key Alt+W
click txtGenre
key Down
key Enter
see txtGenre "AD"
see txtGenreList "Adult"
see focus txtTime
key Alt+S
see film 3 Genre "AD"
