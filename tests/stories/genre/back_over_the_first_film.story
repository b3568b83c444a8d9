# Back over films of another genre down to position 1 reports the top.
film 1 Title="Alien" Genre="DR"
film 2 Title="Brazil" Genre="DR"
film 3 Title="Casablanca" Genre="SF"
film 4 Title="Zulu" Genre="DR"
sorted
start
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
see txtTitle "Casablanca"
see state KeyFilePos 3
click cmdPrevious
beep
box warning "" "Top of file encountered!" OK
see state CurrentRecNo 1
see state ViewKind ""
see state KeyFilePos 0
see state ViewState 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
