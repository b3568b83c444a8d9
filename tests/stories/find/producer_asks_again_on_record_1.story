# Producer search chosen again after its end asks: on record 1 it does not go on, and with its flag set the hits start from 0.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
click cmdMatch
click cmdMatch
beep
box warning "PRODUCER SEARCH" "End of file!" OK
see state ResumeProducer 1
see state RowCursor 2
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "xyz"
beep
box warning "PRODUCER SEARCH" "The search for \"XYZ\" was not found. " OK
see state RowCursor 0
see state ResumeProducer 1
