# Producer search after a hit and a reset that finds nothing tells the end, as the hit is still counted.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
click cmdReset
see state RowCursor 1
see state ProducerQuery "KARIN"
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "xyz"
beep
box warning "PRODUCER SEARCH" "End of file!" OK
see state RowCursor 1
