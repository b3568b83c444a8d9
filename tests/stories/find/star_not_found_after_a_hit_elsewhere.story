# Star search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Anna Karina"
film 3 Title="Film 3" Star1="Banana Split"
film 4 Title="Film 4" Star1="karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "xyz"
beep
box warning "STAR  SEARCH" "End of file!" OK
see state RowCursor 1
