# Blanks in the answer are part of the sought text.
film 1 Title="Alien" Genre="SF" Director="Ridley Scott"
film 2 Title="Brazil" Genre="DR"
film 3 Title=""
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf "
beep
box warning "GENRE SEARCH" "The search for \"\" genre was not found." OK
