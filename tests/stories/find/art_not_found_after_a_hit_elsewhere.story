# Art search from a film that is not the first, after a hit: finding nothing tells the end.
film 1 Title="Film 1" SetDirection="Nobody"
film 2 Title="Film 2" SetDirection="Anna Karina"
film 3 Title="Film 3" SetDirection="Banana Split"
film 4 Title="Film 4" SetDirection="karina"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "karin"
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "xyz"
beep
box warning "ART DIRECTION SEARCH" "End of file!" OK
see state RowCursor 1
