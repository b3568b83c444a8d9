# NA chosen with the arrow keys shows its name and is stored.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
key Alt+W
click txtGenre
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Down
key Enter
see txtGenre "NA"
see txtGenreList "Nature"
see focus txtTime
key Alt+S
see film 3 Genre "NA"
