# The film with the highest number ends the view whatever its genre.
film 1 Title="Alien" Genre="SF"
film 2 Title="Zardoz" Genre="SF"
film 3 Title="Metropolis" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
click cmdNext
beep
box warning "" "End of file encountered!" OK
