# Music search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" Music="Nobody"
film 2 Title="Film 2" Music="Anna Karina"
film 3 Title="Film 3" Music="Banana Split"
film 4 Title="Film 4" Music="karina"
start
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "karin"
click mnuMusic
input "Search For Music Composer" "Enter Music Composer To Search: " "xyz"
beep
box warning "MUSIC COMPOSER SEARCH" "End of file!" OK
see state RowCursor 1
