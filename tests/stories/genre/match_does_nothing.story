# Match does nothing in a genre view; the page stays, too.
film 1 Title="Alien" Genre="SF"
film 2 Title="Brazil" Genre="SF"
film 3 Title="Casablanca" Genre="DR"
film 4 Title="Dune" Genre="SF"
film 5 Title="Metropolis" Genre="SF"
film 6 Title="Zulu" Genre="DR"
sorted
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "x"
beep
box warning "DIRECTOR SEARCH" "The search for \"X\" was not found. " OK
click mnuFindGenre
input "Search For Genre" "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  "
+ "Comedy\n\rDR  Drama" "sf"
click optnoteson
click cmdMatch
see txtTitle "Alien"
see lblPage "PAGE 2"
see state CurrentRecNo 1
see frmPage1.HelpContext 380
