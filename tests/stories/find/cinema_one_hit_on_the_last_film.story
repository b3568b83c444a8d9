# Cinema search whose only hit is the last film: it is shown, and Match tells the end behind it.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Banana Split"
film 3 Title="Film 3" Cinematographer="Nobody"
film 4 Title="Film 4" Cinematographer="Anna Karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
see state CurrentRecNo 4
see lblHead "    Viewing Files by Cinematographers"
click cmdMatch
beep
box warning "CINEMATOGRAPHER SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
