# Director search whose only hit is the last film: it is shown, and Match tells the end behind it.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Banana Split"
film 3 Title="Film 3" Director="Nobody"
film 4 Title="Film 4" Director="Anna Karina"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
see state CurrentRecNo 4
see lblHead " Viewing Files for Director Anna Karina                   "
click cmdMatch
beep
box warning "DIRECTOR SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
