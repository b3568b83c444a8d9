# A code outside the table leaves the name of the film before.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="ZZ"
start
click cmdNext
see txtGenre "ZZ"
see txtGenreList "Science Fiction"
