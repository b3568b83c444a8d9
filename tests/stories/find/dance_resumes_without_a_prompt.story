# Dance search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Choreography="Nobody"
film 2 Title="Film 2" Choreography="Anna Karina"
film 3 Title="Film 3" Choreography="Banana Split"
film 4 Title="Film 4" Choreography="karina"
start
click mnuDance
input "Search For Choreographer" "Enter Choreographer To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuDance
see state CurrentRecNo 4
see state RowCursor 3
see lblHead "Choreography By karina                        "
click cmdMatch
beep
box warning "CHOREOGRAPHER SEARCH" "End of file!" OK
