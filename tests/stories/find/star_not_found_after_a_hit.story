# Star search after a hit and a reset that finds nothing says so all the same: on record 1 it counts anew.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Anna Karina"
film 3 Title="Film 3" Star1="Banana Split"
film 4 Title="Film 4" Star1="karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
click cmdReset
see state RowCursor 1
see state StarQuery "KARIN"
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "xyz"
beep
box warning "STAR 1 SEARCH" "The search for \"xyz\" was not found." OK
see state RowCursor 0
