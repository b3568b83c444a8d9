# MPAA search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click cmdMatch
click cmdMatch
beep
box warning "MPAA RATINGS SEARCH" "End of file!" OK
see state ResumeMPAA 1
see state RowCursor 2
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "xyz"
beep
box warning "MPAA RATINGS SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeMPAA 1
