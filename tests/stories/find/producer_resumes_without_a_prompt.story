# Producer search chosen again after Match goes on without asking, from the film on the screen, which it tests again.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
click cmdMatch
see state CurrentRecNo 4
click mnuProducer
see state CurrentRecNo 4
see state RowCursor 3
see lblHead " Produced  By karina                        "
click cmdMatch
beep
box warning "PRODUCER SEARCH" "End of file!" OK
