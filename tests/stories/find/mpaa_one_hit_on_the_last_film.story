# MPAA search whose only hit is the last film: it is shown, and Match tells the end behind it.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG-13"
film 3 Title="Film 3" Rating="R"
film 4 Title="Film 4" Rating="PG"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
see state CurrentRecNo 4
see lblHead "MPAA Rating is  PG   "
click cmdMatch
beep
box warning "MPAA RATINGS SEARCH" "End of file!" OK
see state CurrentRecNo 1
see state MatchKind ""
see state SearchState 0
see state FindPending 0
see lblHead "To write a new record click \"New\" button or ALT \"W\""
