# Find By Genre shows the films of one genre in title order; Next counts 1 for itself and 1 for the film.
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
see txtTitle "Alien"
see lblHead "Viewing Files For Science Fiction  Alphabetically"
see frmPage1 "Reelora Prima Record  1/ 6      Genre Sorted"
see state ViewKind "Genre"
see state SearchState 3
see state GenreFilter "SF"
see state GenreWords "Science Fiction"
see state KeyFilePos 1
see state RowCursor 1
see state RecordFound 1
see state MatchPos 1
see state NavDirection 0
click cmdNext
see txtTitle "Brazil"
see state KeyFilePos 2
see state RowCursor 3
click cmdNext
see txtTitle "Dune"
see state KeyFilePos 4
see state RowCursor 5
see lblHead "Viewing Files For Science Fiction  Alphabetically"
click cmdNext
see txtTitle "Metropolis"
click cmdNext
beep
box warning "" "End of file encountered!" OK
see state RowCursor 8
see state SearchState 0
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
