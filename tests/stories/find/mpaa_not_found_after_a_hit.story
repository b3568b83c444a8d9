# MPAA search after a hit and a reset that finds nothing tells the end, as the hit is still counted.
film 1 Title="Film 1" Rating="R"
film 2 Title="Film 2" Rating="PG"
film 3 Title="Film 3" Rating="PG-13"
film 4 Title="Film 4" Rating="pg"
start
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "pg"
click cmdReset
see state RowCursor 1
see state MPAAQuery "PG"
click mnuMPAA
input "Search For MPAA or TV Ratings" "Enter Ratings To Search: " "xyz"
beep
box warning "MPAA RATINGS SEARCH" "End of file!" OK
see state RowCursor 1
