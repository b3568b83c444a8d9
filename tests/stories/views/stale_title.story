# A title changed after the sort: the film keeps its old place and shows its new title.
film 1 Title="Alien"
film 2 Title="Brazil"
sorted
film 1 Title="Zulu"
start
see key Titlepra.Dat 1 "Alien" 1
click mnuByTitle
see txtTitle "Zulu"
click cmdNext
see txtTitle "Brazil"
click cmdNext
beep
box warning "ALPHA TITLE SEARCH" "End of file!" OK
