# Back on the first key of a genre view says so in the words of the walk.
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
click cmdPrevious
beep
box warning "GENRE SEARCH" "Beginning of file encounter!" OK
see state NavDirection 0
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
