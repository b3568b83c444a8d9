# Director search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" Director="Nobody"
film 2 Title="Film 2" Director="Anna Karina"
film 3 Title="Film 3" Director="Banana Split"
film 4 Title="Film 4" Director="karina"
start
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "karin"
click mnuFindDirector
input "Search For Director" "Enter Director. To Search: " "xyz"
beep
box warning "DIRECTOR SEARCH" "End of file!" OK
see state RowCursor 1
