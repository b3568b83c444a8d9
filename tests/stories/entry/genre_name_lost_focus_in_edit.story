# In Edit the genre name that is left steers nowhere.
film 1 Title="Alien" Format="V"
film 2 Title="Brazil" Format="V"
start
click cmdEdit
click txtGenreList
click txtDirector
see focus txtDirector
