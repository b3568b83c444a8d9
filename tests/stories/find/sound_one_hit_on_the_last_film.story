# Sound search whose only hit is the last film: it is shown, and Match tells the end behind it.
film 1 Title="Film 1" Sound="Nobody"
film 2 Title="Film 2" Sound="Banana Split"
film 3 Title="Film 3" Sound="Nobody"
film 4 Title="Film 4" Sound="Anna Karina"
start
click mnuSound
input "Search For Sound" "Enter Sound To Search: \n\rTHX Dolby Etc." "karin"
see state CurrentRecNo 4
see lblHead "Viewing Sound Recording in Anna Karina"
click cmdMatch
beep
box warning "SOUND RECORDING SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
