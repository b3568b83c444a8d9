# A blank key is skipped in a genre view, on the way back, too: Back goes to it and returns to the same film.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
film 3 Title="Casablanca" Genre="SF"
film 4 Title=""
key Titlepra.Dat "Alien" 1
key Titlepra.Dat "" 2
key Titlepra.Dat "Casablanca" 3
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see txtTitle "Alien"
click cmdNext
see txtTitle "Casablanca"
see state KeyFilePos 3
click cmdPrevious
see txtTitle "Casablanca"
see state KeyFilePos 3
