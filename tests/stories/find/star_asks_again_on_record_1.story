# Star search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Star1="Nobody"
film 2 Title="Film 2" Star1="Anna Karina"
film 3 Title="Film 3" Star1="Banana Split"
film 4 Title="Film 4" Star1="karina"
start
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "STAR  SEARCH" "End of file!" OK
see state ResumeStar 1
see state RowCursor 2
click mnuFindStar
input "Search For Star" "Enter Star To Search: " "xyz"
beep
box warning "STAR 1 SEARCH" "The search for \"xyz\" was not found." OK
see state RowCursor 0
see state ResumeStar 1
