# Hits left from an earlier search make a fruitless genre search tell the end.
film 1 Title="Alien" Genre="SF" Director="Ridley Scott"
film 2 Title="Brazil" Genre="DR"
film 3 Title=""
sorted
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "scott"
see state RowCursor 1
click cmdReset
see state RowCursor 1
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "we"
beep
box warning "GENRE SEARCH" "End of file!" OK
