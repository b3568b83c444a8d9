# Of two blank keys in a row the second is taken in a genre view.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
film 3 Title="Casablanca" Genre="SF"
film 4 Title=""
key Titlepra.Dat "" 1
key Titlepra.Dat "" 2
key Titlepra.Dat "Casablanca" 3
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see txtTitle "Brazil"
see state KeyFilePos 2
