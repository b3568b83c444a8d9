# The film with the highest number ends the view wherever it is; the films after it are not reached.
film 1 Title="Alien" Genre="SF"
film 2 Title="Zardoz" Genre="SF"
film 3 Title="Metropolis" Genre="SF"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see txtTitle "Alien"
click cmdNext
beep
box warning "" "End of file encountered!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
