# Art search whose only hit is the last film: it is shown, and a new search reports the end after it.
film 1 Title="Film 1" SetDirection="Nobody"
film 2 Title="Film 2" SetDirection="Banana Split"
film 3 Title="Film 3" SetDirection="Nobody"
film 4 Title="Film 4" SetDirection="Anna Karina"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "karin"
see state CurrentRecNo 4
see lblHead "    Viewing Files by Art Direction"
click cmdMatch
input "Search Art Director" "Enter Art Director To Search: " "xyz"
beep
box warning "ART DIRECTION SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
