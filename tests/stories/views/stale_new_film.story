# A film written after the sort is missing from the view and is reached by its number.
film 1 Title="Brazil"
sorted
film 2 Title="Alien"
start
click mnuByTitle
see txtTitle "Brazil"
click cmdNext
beep
box warning "ALPHA TITLE SEARCH" "End of file!" OK
click cmdNext
see txtTitle "Alien"
