# Director search after a hit and a reset that finds nothing tells the end, as the hit is still counted.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Anna Karina"
film 3 Title="Film 3" Director="Banana Split"
film 4 Title="Film 4" Director="karina"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
click cmdReset
see state RowCursor 1
see state DirectorQuery "KARIN"
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "xyz"
beep
box warning "DIRECTOR SEARCH" "End of file!" OK
see state RowCursor 1
