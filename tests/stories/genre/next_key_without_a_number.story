# Next onto a key without a number leaves the film, under a heading without the name of the genre.
film 1 Title="Alien" Genre="SF" Format="V"
film 2 Title="Brazil" Genre="SF"
key Titlepra.Dat "Alien" 1
key Titlepra.Dat "Nobody" 0
count Titlepra 2
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see txtTitle "Alien"
see txtFormat "VHS"
click cmdNext
see lblHead "Viewing Genre File Alphabetically"
see focus txtTitle
see txtTitle "Alien"
