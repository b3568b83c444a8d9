# Title search whose only hit is the last film: it is shown, and Match reports the end after it.
film 1 Title="Nobody"
film 2 Title="Banana Split"
film 3 Title="Nobody"
film 4 Title="Anna Karina"
start
click mnuFindTitle
input "Search For Title" "Enter Title. To Search: " "karin"
see state CurrentRecNo 4
see lblHead "    Viewing Title  - Anna Karina                             "
click cmdMatch
beep
box warning "TITLE SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
