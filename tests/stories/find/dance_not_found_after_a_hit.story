# Dance search after a hit and a reset that finds nothing tells the end, as the hit is still counted.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="Anna Karina"
film 3 Title="Film 3" Choreography="Banana Split"
film 4 Title="Film 4" Choreography="karina"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karin"
click cmdReset
see state RowCursor 1
see state DanceQuery "KARIN"
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "xyz"
beep
box warning "CHOREOGRAPHER SEARCH" "End of file!" OK
see state RowCursor 1
