# A genre that no film has is not found, in the genre's words, where the highest slot has no key.
film 1 Title="Alien" Genre="SF" Director="Ridley Scott"
film 2 Title="Brazil" Genre="DR"
film 3 Title=""
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "we"
beep
box warning "GENRE SEARCH" "The search for \"Western\" genre was not found." OK
see state RowCursor 0
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
