# Cinema search: an empty answer resets the screen with no word and drops the kept text.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " ""
see state CinemaQuery ""
see state RowCursor 1
see state KeyFilePos 0
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
click cmdMatch
see state CurrentRecNo 1
