# Find Last Record shows the highest slot though it is free.
film 1 Title="Alien" Genre="SF"
film 2 Title=""
start
click mnuLast
see state CurrentRecNo 2
see txtTitle ""
see txtGenreList ""
