# Find Last Entry onto a film whose aspect letter is unknown shows no aspect.
film 1 Title="Alien" Letter="W"
film 2 Title="Brazil" Letter="Z"
file Last "2\r\n"
start
see txtLetter "Wide Screen"
click mnuLastEntry
see txtTitle "Brazil"
see txtLetter ""
