# Star search whose only hit is the last film: it is shown, and Match tells the end behind it.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Banana Split"
film 3 Title="Film 3" Star1="Nobody"
film 4 Title="Film 4" Star1="Anna Karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
see state CurrentRecNo 4
see lblHead "Viewing Files For  Anna Karina                   "
click cmdMatch
beep
box warning "STAR  SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
