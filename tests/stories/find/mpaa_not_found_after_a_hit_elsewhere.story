# MPAA search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "xyz"
beep
box warning "MPAA RATINGS SEARCH" "End of file!" OK
see state RowCursor 1
