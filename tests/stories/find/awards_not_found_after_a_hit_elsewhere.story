# Awards search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" Awards="Nobody"
film 2 Title="Film 2" Awards="Anna Karina"
film 3 Title="Film 3" Awards="Banana Split"
film 4 Title="Film 4" Awards="karina"
start
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "karin"
click mnuAwards
input "Search For Awards" "Enter Awards To Search: " "xyz"
beep
box warning "AWARDS SEARCH" "End of file!" OK
see state RowCursor 1
