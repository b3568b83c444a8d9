# MPAA search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click cmdMatch
see state CurrentRecNo 4
click mnuMPAA
see state CurrentRecNo 4
see state RowCursor 3
see lblHead "MPAA Rating is  pg   "
click cmdMatch
beep
box warning "MPAA RATINGS SEARCH" "End of file!" OK
