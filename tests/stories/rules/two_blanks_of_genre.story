# Stepping to a film without genre empties the name to sixteen blanks.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil"
start
click cmdNext
see txtGenre ""
see txtGenreList "                "
