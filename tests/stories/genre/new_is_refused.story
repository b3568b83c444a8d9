# New is refused in a genre view, in silence.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
film 3 Title="Casablanca" Genre="DR"
film 4 Title="Dune" Genre="SF"
film 5 Title="Metropolis" Genre="SF"
film 6 Title="Zulu" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
click cmdNew
see state NewMode 0
see txtTitle "Alien"
