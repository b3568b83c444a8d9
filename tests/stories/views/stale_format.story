# A format changed after the sort: the film stays in the old view and is missing from the new.
film 1 Title="Alien" Format="D"
film 2 Title="Brazil" Format="V"
sorted
film 1 Title="Alien" Format="V"
start
click mnuByDVD
see txtTitle "Alien"
see txtFormat "VHS"
click mnuByVHS
see txtTitle "Brazil"
click cmdNext
beep
box warning "ALPHA VHS TITLE SEARCH" "          End of file!" OK
