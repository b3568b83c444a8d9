# Find By Genre in Edit has Next and Back again, and the key ends the edit.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
film 3 Title="Casablanca" Genre="DR"
film 4 Title="Dune" Genre="SF"
film 5 Title="Metropolis" Genre="SF"
film 6 Title="Zulu" Genre="DR"
sorted
start
click cmdEdit
see cmdNext.Enabled no
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see state EditMode 0
see cmdNext.Enabled yes
see cmdPrevious.Enabled yes
