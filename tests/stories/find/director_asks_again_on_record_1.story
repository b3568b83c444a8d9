# Director search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Anna Karina"
film 3 Title="Film 3" Director="Banana Split"
film 4 Title="Film 4" Director="karina"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "DIRECTOR SEARCH" "End of file!" OK
see state ResumeDirector 1
see state RowCursor 2
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "xyz"
beep
box warning "DIRECTOR SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeDirector 1
