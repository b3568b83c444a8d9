# Costume search whose only hit is the last film: it is shown, and Match tells the end behind it.
film 1 Title="Film 1" Costume="Nobody"
film 2 Title="Film 2" Costume="Banana Split"
film 3 Title="Film 3" Costume="Nobody"
film 4 Title="Film 4" Costume="Anna Karina"
start
click mnuCostume
input "Search For Costume Designer" "Enter Costume Designer To Search: " "karin"
see state CurrentRecNo 4
see lblHead " Viewing For Costume Designer Anna Karina                   "
click cmdMatch
beep
box warning "COSTUME DESIGNER SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
