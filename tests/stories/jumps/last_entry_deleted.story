# "Last" naming a deleted film shows the empty slot and no genre.
film 1 Title="Alien" Genre="SF"
film 2 Title=""
film 3 Title="Zulu" Genre="WE"
file Last "2\r\n"
start
click mnuLastEntry
see state CurrentRecNo 2
see txtTitle ""
see txtGenreList ""
