# Writer search whose only hit is the last film: it is shown, and Match tells the end behind it.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Banana Split"
film 3 Title="Film 3" Written="Nobody"
film 4 Title="Film 4" Written="Anna Karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
see state CurrentRecNo 4
see lblHead " Written by Anna Karina"
click cmdMatch
beep
box warning "WRITER SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
