# Art search after a hit and a reset that finds nothing tells the end, as the hit is still counted.
film 1 Title="Film 1" SetDirection="Nobody"
film 2 Title="Film 2" SetDirection="Anna Karina"
film 3 Title="Film 3" SetDirection="Banana Split"
film 4 Title="Film 4" SetDirection="karina"
start
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "karin"
click cmdReset
see state RowCursor 1
see state ArtQuery "KARIN"
click mnuArt
input "Search Art Director" "Enter Art Director To Search: " "xyz"
beep
box warning "ART DIRECTION SEARCH" "End of file!" OK
see state RowCursor 1
