# Writer search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" Written="Nobody"
film 2 Title="Film 2" Written="Anna Karina"
film 3 Title="Film 3" Written="Banana Split"
film 4 Title="Film 4" Written="karina"
start
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "karin"
click mnuWriter
input "Search For Writer" "Enter Writer To Search: " "xyz"
beep
box warning "WRITER SEARCH" "End of file!" OK
see state RowCursor 1
