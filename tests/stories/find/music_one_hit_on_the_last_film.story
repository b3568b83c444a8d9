# Music search whose only hit is the last film: it is shown, and Match tells the end behind it.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Banana Split"
film 3 Title="Film 3" Music="Nobody"
film 4 Title="Film 4" Music="Anna Karina"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
see state CurrentRecNo 4
see lblHead "   Music Composed By Anna Karina                   "
click cmdMatch
beep
box warning "MUSIC COMPOSER SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
