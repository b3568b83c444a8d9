# Back in a genre view skips the films of other genres; the film of the first key is not reached: at position 1 the
# top is reported.
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
click cmdNext
click cmdNext
see txtTitle "Dune"
click cmdPrevious
see txtTitle "Brazil"
see state KeyFilePos 2
see state NavDirection 1
see state RowCursor 6
see lblHead "Viewing Files For Science Fiction  Alphabetically"
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
see state NavDirection 1
see state SearchState 0
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
