# Cinema search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" Cinematographer="Nobody"
film 2 Title="Film 2" Cinematographer="Anna Karina"
film 3 Title="Film 3" Cinematographer="Banana Split"
film 4 Title="Film 4" Cinematographer="karina"
start
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "karin"
click mnuCinema
input "Search For Cinematographer" "Enter Cinematographer To Search: " "xyz"
beep
box warning "CINEMATOGRAPHER SEARCH" "End of file!" OK
see state RowCursor 1
