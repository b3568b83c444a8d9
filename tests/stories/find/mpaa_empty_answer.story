# MPAA search: an empty answer resets the screen with no word and drops the kept text.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " ""
see state MPAAQuery ""
see state RowCursor 1
see state KeyFilePos 0
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
click cmdMatch
see state CurrentRecNo 1
