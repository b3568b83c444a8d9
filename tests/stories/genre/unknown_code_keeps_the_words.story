# A code outside the table keeps the words of the last known one.
film 1 Title="Alien" Genre="SF" Director="Ridley Scott"
film 2 Title="Brazil" Genre="DR"
film 3 Title=""
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "we"
beep
box warning "GENRE SEARCH" "The search for \"Western\" genre was not found." OK
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "zz"
beep
box warning "GENRE SEARCH" "The search for \"Western\" genre was not found." OK
