# The film with the highest number before all others ends the view before it begins.
film 1 Title="Metropolis" Genre="SF"
film 2 Title="Alien" Genre="SF"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
beep
box warning "" "End of file encountered!" OK
see state RowCursor 0
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
