# Producer search chosen again after a jump goes on from the film on the screen.
film 1 Title="Film 1" Producer="Nobody"
film 2 Title="Film 2" Producer="Anna Karina"
film 3 Title="Film 3" Producer="Banana Split"
film 4 Title="Film 4" Producer="karina"
start
click mnuProducer
input "Search For Producer" "Enter Producer To Search: " "karin"
click cmdMatch
click mnuFile
input "Reelora Prima" "Enter File No To Search:" "3"
click mnuProducer
see state CurrentRecNo 4
see state RowCursor 3
