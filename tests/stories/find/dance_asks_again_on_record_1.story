# Dance search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="Anna Karina"
film 3 Title="Film 3" Choreography="Banana Split"
film 4 Title="Film 4" Choreography="karina"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "CHOREOGRAPHER SEARCH" "End of file!" OK
see state ResumeDance 1
see state RowCursor 2
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "xyz"
beep
box warning "CHOREOGRAPHER SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeDance 1
