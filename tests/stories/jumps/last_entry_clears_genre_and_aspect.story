# Find Last Entry empties genre name and aspect in front of the showing.
film 1 Title="Alien" Genre="SF" Letter="W"
film 2 Title="Brazil" Genre="ZZ" Letter=" "
file Last "2\r\n"
start
click mnuLastEntry
see txtGenreList ""
see txtLetter " "
